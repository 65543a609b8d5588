// The front end without a screen: answers come from a script, what is shown goes to a transcript.
#pragma once

#include "framework/scripted/Hands.h"
#include "framework/scripted/ScriptDirector.h"
#include "platform/FrontEnd.h"

namespace qutav {

class ScriptedFrontEnd final : public FrontEnd {
 public:
  explicit ScriptedFrontEnd(ScriptDirector& director) : director_(director) {}

  WindowHandle FocusWindow() override { return nullptr; }
  WindowHandle MainWindow() override { return nullptr; }
  int ShowMessage(const MessageBoxRequest& request) override {
    return director_.ShowMessage(request);
  }
  int RunModal(CDialog& dialog) override;
  int RunModal(CPropertySheet& sheet) override;
  std::optional<std::u16string> ChooseFile(const FileDialogRequest& request) override {
    return director_.ChooseFile(request);
  }
  std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request) override {
    return director_.ChooseFolder(request);
  }
  void OpenLink(const std::u16string& url) override { director_.OpenLink(url); }
  int TextWidth(const Control& control, const std::u16string& text) override;
  int AverageCharacterWidth(const Control& control) override;
  void Repaint(CDialog&) override {}
  Rectangle ActiveWindowRectangle() override { return {}; }
  Rectangle DesktopRectangle() override;
  Rectangle DialogRectangle(const CDialog& dialog) override;

 private:
  ScriptDirector& director_;
  ModelHands hands_;
};

/// The one of `EnvironmentDirector`.
ScriptedFrontEnd& EnvironmentFrontEnd();

}  // namespace qutav
