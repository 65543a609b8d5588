// Carries out the steps of a script on a dialog or a sheet.
#pragma once

#include <string>
#include <vector>

#include "framework/CPropertySheet.h"
#include "framework/scripted/AnswerScript.h"
#include "framework/scripted/Hands.h"
#include "framework/scripted/Transcript.h"

namespace qutav {

class StepPlayer {
 public:
  /// `pressed` is given the label of each button after its click.
  StepPlayer(CDialog& dialog, Hands& hands, Transcript& transcript, std::string& pressed)
      : dialog_(dialog),
        sheet_(dynamic_cast<CPropertySheet*>(&dialog)),
        hands_(hands),
        transcript_(transcript),
        pressed_(pressed) {}

  /// Until the dialog ends. A step that cannot be carried out is a mistake of the script: it is
  /// told, and the dialog is cancelled.
  void Play(const std::vector<ScriptStep>& steps);
  /// Cancels the dialog, by its button if it has one, unless it has ended.
  void Leave();

 private:
  void PlayStep(const ScriptStep& step);
  void Press(const std::string& label);
  void TurnTo(const std::string& page);
  void Select(const std::string& list, const std::string& row);
  void Set(const std::string& label, const std::string& value);
  void Cancel(const std::string& mistake);
  void TakePicture(const std::string& path);
  void Show();
  /// The dialog, or the sheet's active page.
  CDialog& Front() const;

  CDialog& dialog_;
  CPropertySheet* sheet_;
  Hands& hands_;
  Transcript& transcript_;
  std::string& pressed_;
};

}  // namespace qutav
