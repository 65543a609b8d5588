// The front end without a screen: answers come from a script, what is shown goes to a transcript.
#pragma once

#include <mutex>

#include "framework/scripted/AnswerScript.h"
#include "framework/scripted/Transcript.h"
#include "platform/FrontEnd.h"

namespace qutav {

class ScriptedFrontEnd final : public FrontEnd {
 public:
  ScriptedFrontEnd(AnswerScript script, Transcript& transcript);

  WindowHandle FocusWindow() override { return nullptr; }
  WindowHandle MainWindow() override { return nullptr; }
  int ShowMessage(const MessageBoxRequest& request) override;
  int RunModal(CDialog& dialog) override;
  int RunModal(CPropertySheet& sheet) override;
  std::optional<std::u16string> ChooseFile(const FileDialogRequest& request) override;
  std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request) override;
  void OpenLink(const std::u16string& url) override;
  int TextWidth(const Control& control, const std::u16string& text) override;
  int AverageCharacterWidth(const Control& control) override;
  void Repaint(CDialog&) override {}
  Rectangle ActiveWindowRectangle() override { return {}; }
  Rectangle DesktopRectangle() override;
  Rectangle DialogRectangle(const CDialog& dialog) override;

 private:
  std::optional<ScriptAnswer> TakeAnswer(const Shown& shown);
  /// The path that an answer gives, in Windows form.
  std::optional<std::u16string> Chosen(const Shown& shown);
  void RunDialog(CDialog& dialog, const std::optional<ScriptAnswer>& answer);
  void RunTimers(CDialog& dialog, const std::optional<ScriptAnswer>& answer);
  void RecordClosed(const CDialog& dialog);
  void ReportMistake(const std::string& mistake);

  std::mutex mutex_;  // a worker may show a message while the script thread is in a dialog
  AnswerScript script_;
  Transcript& transcript_;
  std::string pressed_;
};

/// The front end that QUTAV_SCRIPT and QUTAV_TRANSCRIPT ask for. A script that cannot be read is
/// told on standard error, and the defaults hold.
ScriptedFrontEnd& EnvironmentFrontEnd();

}  // namespace qutav
