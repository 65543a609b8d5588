// The front end that shows real windows of the system.
#pragma once

#include "platform/FrontEnd.h"

namespace qutav {

class NativeFrontEnd : public FrontEnd {
 public:
  WindowHandle FocusWindow() override;
  WindowHandle MainWindow() override;
  int ShowMessage(const MessageBoxRequest& request) override;
  int RunModal(CDialog& dialog) override;
  int RunModal(CPropertySheet& sheet) override;
  std::optional<std::u16string> ChooseFile(const FileDialogRequest& request) override;
  std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request) override;
  void OpenLink(const std::u16string& url) override;
  int TextWidth(const Control& control, const std::u16string& text) override;
  int AverageCharacterWidth(const Control& control) override;
  void CallHost(const std::function<void()>& call) override;
  void Repaint(CDialog& dialog) override;
  Rectangle ActiveWindowRectangle() override;
  Rectangle DesktopRectangle() override;
  Rectangle DialogRectangle(const CDialog& dialog) override;
};

}  // namespace qutav
