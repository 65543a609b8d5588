// The front end without a screen: answers come from a script, what is shown goes to a transcript.
#pragma once

#include <mutex>

#include "framework/scripted/AnswerScript.h"
#include "framework/scripted/Transcript.h"
#include "platform/FrontEnd.h"

namespace qutav {

struct Control;

class ScriptedFrontEnd final : public FrontEnd {
 public:
  ScriptedFrontEnd(AnswerScript script, Transcript& transcript);

  WindowHandle FocusWindow() override { return nullptr; }
  WindowHandle MainWindow() override { return nullptr; }
  int ShowMessage(const MessageBoxRequest& request) override;
  int RunModal(CDialog& dialog) override;
  int RunModal(CPropertySheet& sheet) override;
  Rectangle ActiveWindowRectangle() override { return {}; }
  Rectangle DesktopRectangle() override;
  Rectangle DialogRectangle(const CDialog& dialog) override;

 private:
  std::optional<ScriptAnswer> TakeAnswer(const Shown& shown);
  void RunDialog(CDialog& dialog, const std::optional<ScriptAnswer>& answer);
  void RunTimers(CDialog& dialog, const std::optional<ScriptAnswer>& answer);
  bool Fill(CDialog& dialog, const ScriptValues& values);
  void Press(CDialog& dialog, const std::vector<std::string>& buttons);
  bool PressOne(CDialog& dialog, const std::string& label);
  void ReportMistake(const std::string& mistake);
  void CancelForMistake(CDialog& dialog, const std::string& mistake);

  std::mutex mutex_;  // a worker may show a message while the script thread is in a dialog
  AnswerScript script_;
  Transcript& transcript_;
  std::string pressed_;
};

/// The front end that QUTAV_SCRIPT and QUTAV_TRANSCRIPT ask for. A script that cannot be read is
/// told on standard error, and the defaults hold.
ScriptedFrontEnd& EnvironmentFrontEnd();

}  // namespace qutav
