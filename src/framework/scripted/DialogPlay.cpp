#include "framework/scripted/DialogPlay.h"

#include "platform/Text.h"

namespace qutav {
namespace {

using Json = nlohmann::ordered_json;

Json RecordOf(const char* event, const CDialog& dialog) {
  return {
      {"event", event}, {"class", ToUtf8(dialog.ClassName())}, {"title", ToUtf8(dialog.Title())}};
}

}  // namespace

DialogPlay::DialogPlay(CDialog& dialog, Hands& hands, ScriptDirector& director)
    : dialog_(dialog),
      hands_(hands),
      director_(director),
      player_(dialog, hands, director.GetTranscript(), director.Pressed()) {}

// A sheet's answer is taken before its pages show messages of their own.
DialogPlay::DialogPlay(CPropertySheet& sheet, Hands& hands, ScriptDirector& director)
    : DialogPlay(static_cast<CDialog&>(sheet), hands, director) {
  sheet_ = &sheet;
  const std::string title = ToUtf8(sheet.Title());
  answer_ = director_.TakeAnswer({"sheet", ToUtf8(sheet.ClassName()), title, ""});
  director_.GetTranscript().Write(
      {{"event", "sheet"}, {"title", title}, {"page", sheet.GetActiveIndex()}});
}

void DialogPlay::OnShown() {
  if (sheet_ == nullptr) {
    Json opened = RecordOf("dialog", dialog_);
    opened["controls"] = hands_.Look(dialog_);
    director_.GetTranscript().Write(opened);
    answer_ =
        director_.TakeAnswer({"dialog", ToUtf8(dialog_.ClassName()), ToUtf8(dialog_.Title()), ""});
  }
  director_.Pressed().clear();
  const bool atOnce = answer_ && (answer_->after.value_or(0) == 0 || !WaitsForTicks());
  if (atOnce) player_.Play(answer_->steps);
  if (!WaitsForTicks()) player_.Leave();
}

void DialogPlay::OnTick() {
  director_.GetTranscript().Write(
      {{"event", "tick"}, {"class", ToUtf8(dialog_.ClassName())}, {"count", ++ticks_}});
  if (answer_ && answer_->after == ticks_) player_.Play(answer_->steps);
  if (!WaitsForTicks()) player_.Leave();
}

bool DialogPlay::WaitsForTicks() const { return !dialog_.Timers().empty(); }

void DialogPlay::OnPage(int index) {
  const CPropertyPage& page = *sheet_->Pages()[static_cast<std::size_t>(index)];
  director_.GetTranscript().Write({{"event", "page"},
                                   {"index", index},
                                   {"class", ToUtf8(page.ClassName())},
                                   {"title", ToUtf8(page.Title())},
                                   {"controls", hands_.Look(page)}});
}

void DialogPlay::OnClosed() {
  Json record = RecordOf("closed", dialog_);
  const std::string& pressed = director_.Pressed();
  record["answer"] = pressed.empty() ? Json(nullptr) : Json(pressed);
  record["result"] = dialog_.Result();
  director_.GetTranscript().Write(record);
}

}  // namespace qutav
