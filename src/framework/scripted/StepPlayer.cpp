#include "framework/scripted/StepPlayer.h"

#include "framework/scripted/UserActions.h"
#include "platform/Text.h"

namespace qutav {

void StepPlayer::Play(const std::vector<ScriptStep>& steps) {
  for (const ScriptStep& step : steps) {
    if (!dialog_.HasEnded()) PlayStep(step);
  }
}

void StepPlayer::Leave() {
  if (dialog_.HasEnded()) return;
  if (FindButton(dialog_, u"Cancel") != nullptr) return Press("Cancel");
  CDialog::Dispatch([&] { dialog_.OnCancel(); });
}

void StepPlayer::PlayStep(const ScriptStep& step) {
  if (!step.page.empty()) TurnTo(step.page);
  for (const auto& [list, row] : step.select) {
    if (!dialog_.HasEnded()) Select(list, row);
  }
  for (const auto& [label, value] : step.set) {
    if (!dialog_.HasEnded()) Set(label, value);
  }
  for (const std::string& button : step.press) Press(button);
  if (step.show && !dialog_.HasEnded()) Show();
  if (!step.picture.empty() && !dialog_.HasEnded()) TakePicture(step.picture);
}

CDialog& StepPlayer::Front() const {
  if (sheet_ == nullptr || sheet_->Pages().empty()) return dialog_;
  return *sheet_->Pages()[static_cast<std::size_t>(sheet_->GetActiveIndex())];
}

void StepPlayer::TurnTo(const std::string& page) {
  const int count = sheet_ == nullptr ? 0 : static_cast<int>(sheet_->Pages().size());
  for (int i = 0; i < count; ++i) {
    if (sheet_->Pages()[static_cast<std::size_t>(i)]->EnglishTitle() != FromUtf8(page)) continue;
    return hands_.TurnTo(*sheet_, i);
  }
  Cancel("no page \"" + page + "\"");
}

void StepPlayer::Select(const std::string& list, const std::string& row) {
  const bool done = SelectByUser(hands_, Front(), FromUtf8(list), FromUtf8(row));
  if (!done) Cancel("no row \"" + row + "\" to choose in \"" + list + "\"");
}

void StepPlayer::Set(const std::string& label, const std::string& value) {
  const bool done = SetByUser(hands_, Front(), FromUtf8(label), FromUtf8(value));
  if (!done) Cancel("no control \"" + label + "\" that takes this value");
}

void StepPlayer::Press(const std::string& label) {
  if (dialog_.HasEnded()) return;
  Clickable* button = FindButton(Front(), FromUtf8(label));
  if (button == nullptr) button = FindButton(dialog_, FromUtf8(label));
  if (button == nullptr) return Cancel("no button \"" + label + "\" to press");
  if (sheet_ != nullptr) {
    transcript_.Write(
        {{"event", "pressed"}, {"title", ToUtf8(sheet_->Title())}, {"button", label}});
  }
  hands_.Click(*button);
  pressed_ = label;  // behind the click, which may have shown another dialog
}

void StepPlayer::Cancel(const std::string& mistake) {
  transcript_.Write(
      {{"event", "script-error"}, {"text", ToUtf8(dialog_.ClassName()) + ": " + mistake}});
  CDialog::Dispatch([&] { dialog_.OnCancel(); });
}

void StepPlayer::TakePicture(const std::string& path) {
  if (!hands_.TakePicture(dialog_, path)) Cancel("no picture can be written to " + path);
}

void StepPlayer::Show() {
  transcript_.Write({{"event", "controls"},
                     {"class", ToUtf8(Front().ClassName())},
                     {"title", ToUtf8(Front().Title())},
                     {"controls", hands_.Look(Front())}});
}

}  // namespace qutav
