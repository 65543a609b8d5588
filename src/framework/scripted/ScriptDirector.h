// A script's answers to what is shown, and the transcript of it all.
#pragma once

#include <mutex>
#include <optional>
#include <string>

#include "framework/scripted/AnswerScript.h"
#include "framework/scripted/Transcript.h"
#include "platform/FrontEnd.h"

namespace qutav {

class ScriptDirector {
 public:
  ScriptDirector(AnswerScript script, Transcript& transcript);

  // What needs no dialog of ours is answered at once, as `FrontEnd` has it.
  int ShowMessage(const MessageBoxRequest& request);
  std::optional<std::u16string> ChooseFile(const FileDialogRequest& request);
  std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request);
  void OpenLink(const std::u16string& url);

  std::optional<ScriptAnswer> TakeAnswer(const Shown& shown);
  Transcript& GetTranscript() { return transcript_; }
  /// The label of the button that was pressed last, in whatever dialog.
  std::string& Pressed() { return pressed_; }

 private:
  /// The path that an answer gives, in Windows form.
  std::optional<std::u16string> Chosen(const Shown& shown);
  void ReportMistake(const std::string& mistake);

  std::mutex mutex_;  // a worker may show a message while the script thread is in a dialog
  AnswerScript script_;
  Transcript& transcript_;
  std::string pressed_;
};

/// That of QUTAV_SCRIPT and QUTAV_TRANSCRIPT. A script that cannot be read is told on standard
/// error, and the defaults hold.
ScriptDirector& EnvironmentDirector();

}  // namespace qutav
