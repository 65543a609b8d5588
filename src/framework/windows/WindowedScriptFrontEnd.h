// Real windows that a script acts on: what it says is done to them by messages, and the transcript
// tells of them.
#pragma once

#include "framework/scripted/ScriptDirector.h"
#include "framework/windows/NativeFrontEnd.h"
#include "framework/windows/WindowHands.h"

namespace qutav {

class WindowedScriptFrontEnd final : public NativeFrontEnd {
 public:
  explicit WindowedScriptFrontEnd(ScriptDirector& director) : director_(director) {}

  int RunModal(CDialog& dialog) override;
  int RunModal(CPropertySheet& sheet) override;

  // The system's own dialogs are answered without being shown.
  int ShowMessage(const MessageBoxRequest& request) override {
    return director_.ShowMessage(request);
  }
  std::optional<std::u16string> ChooseFile(const FileDialogRequest& request) override {
    return director_.ChooseFile(request);
  }
  std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request) override {
    return director_.ChooseFolder(request);
  }
  void OpenLink(const std::u16string& url) override { director_.OpenLink(url); }

 private:
  ScriptDirector& director_;
  WindowHands hands_;
};

}  // namespace qutav
