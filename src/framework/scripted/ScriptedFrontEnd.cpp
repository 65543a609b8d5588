#include "framework/scripted/ScriptedFrontEnd.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "framework/CPropertySheet.h"
#include "framework/scripted/ControlRecord.h"
#include "framework/scripted/StepPlayer.h"
#include "platform/Environment.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "platform/Utf8Path.h"

namespace qutav {
namespace {

using Json = nlohmann::ordered_json;

const char* IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kWarning:
      return "warning";
    case MessageIcon::kPlain:
      break;
  }
  return "none";
}

std::optional<int> ResultOfButton(MessageButtons buttons, const std::string& label) {
  if (label == "OK") return kIdOk;
  if (label == "Cancel" && buttons == MessageButtons::kOkCancel) return kIdCancel;
  return {};
}

int DefaultAnswer(MessageButtons buttons) {
  return buttons == MessageButtons::kOk ? kIdOk : kIdCancel;
}

Json OpeningRecord(const CDialog& dialog) {
  return {{"event", "dialog"},
          {"class", ToUtf8(dialog.ClassName())},
          {"title", ToUtf8(dialog.Title())},
          {"controls", RecordControls(dialog)}};
}

Json TextOrNull(const std::optional<std::u16string>& text) {
  return text ? Json(ToUtf8(*text)) : Json(nullptr);
}

// A sheet that always fits its screen.
class ScriptedSheetWindow final : public SheetWindow {
 public:
  ScriptedSheetWindow(const CPropertySheet& sheet, Transcript& transcript)
      : sheet_(sheet), transcript_(transcript) {}

  Rectangle WorkArea() override { return {0, 0, 1024, 738}; }
  Rectangle WindowRectangle() override { return {0, 0, 520, 600}; }
  int ScrollBarWidth() override { return 17; }
  Rectangle ButtonRectangle(int) override { return {430, 560, 505, 583}; }
  void Resize(int, int) override {}
  void ShowScrollBar(const ScrollInfo&) override {}
  void SetScrollPosition(int, bool) override {}
  void ScrollContents(int) override {}
  void ShowPage(int index) override {
    const CPropertyPage& page = *sheet_.Pages()[static_cast<std::size_t>(index)];
    transcript_.Write({{"event", "page"},
                       {"index", index},
                       {"class", ToUtf8(page.ClassName())},
                       {"title", ToUtf8(page.Title())},
                       {"controls", RecordControls(page)}});
  }

 private:
  const CPropertySheet& sheet_;
  Transcript& transcript_;
};

}  // namespace

ScriptedFrontEnd::ScriptedFrontEnd(AnswerScript script, Transcript& transcript)
    : script_(std::move(script)), transcript_(transcript) {}

std::optional<ScriptAnswer> ScriptedFrontEnd::TakeAnswer(const Shown& shown) {
  const std::lock_guard lock(mutex_);
  return script_.Take(shown);
}

int ScriptedFrontEnd::ShowMessage(const MessageBoxRequest& request) {
  const std::string text = ToUtf8(request.text);
  const std::string title = ToUtf8(request.title);
  const auto answer = TakeAnswer({"message", "", title, text});
  int result = DefaultAnswer(request.buttons);
  if (answer && !answer->steps.front().press.empty()) {
    const std::string& button = answer->steps.front().press.front();
    const auto pressed = ResultOfButton(request.buttons, button);
    if (!pressed) ReportMistake("message \"" + text + "\": no button \"" + button + "\" to press");
    result = pressed.value_or(result);
  }
  Json buttons = Json::array({"OK"});
  if (request.buttons == MessageButtons::kOkCancel) buttons.push_back("Cancel");
  transcript_.Write({{"event", "message"},
                     {"title", title},
                     {"text", text},
                     {"icon", IconName(request.icon)},
                     {"buttons", buttons},
                     {"answer", result == kIdOk ? "OK" : "Cancel"}});
  return result;
}

int ScriptedFrontEnd::RunModal(CDialog& dialog) {
  dialog.Create();
  transcript_.Write(OpeningRecord(dialog));
  pressed_.clear();
  RunDialog(dialog, TakeAnswer({"dialog", ToUtf8(dialog.ClassName()), ToUtf8(dialog.Title()), ""}));
  RecordClosed(dialog);
  dialog.Destroy();
  return dialog.Result();
}

void ScriptedFrontEnd::RecordClosed(const CDialog& dialog) {
  transcript_.Write({{"event", "closed"},
                     {"class", ToUtf8(dialog.ClassName())},
                     {"title", ToUtf8(dialog.Title())},
                     {"answer", pressed_.empty() ? Json(nullptr) : Json(pressed_)},
                     {"result", dialog.Result()}});
}

void ScriptedFrontEnd::RunDialog(CDialog& dialog, const std::optional<ScriptAnswer>& answer) {
  StepPlayer player(dialog, transcript_, pressed_);
  const bool atOnce = answer && (answer->after.value_or(0) == 0 || dialog.Timers().empty());
  if (atOnce) player.Play(answer->steps);
  if (!dialog.HasEnded() && !dialog.Timers().empty()) RunTimers(dialog, answer);
  player.Press("Cancel");
}

// The loop of a dialog that ends itself: its timer fires until it does, or until the script
// presses.
void ScriptedFrontEnd::RunTimers(CDialog& dialog, const std::optional<ScriptAnswer>& answer) {
  StepPlayer player(dialog, transcript_, pressed_);
  for (unsigned count = 1; !dialog.HasEnded() && !dialog.Timers().empty(); ++count) {
    const auto [id, period] = *dialog.Timers().begin();
    TheServices().clock->Sleep(period);
    CDialog::Dispatch([&, timer = id] { dialog.OnTimer(timer); });
    transcript_.Write({{"event", "tick"}, {"class", ToUtf8(dialog.ClassName())}, {"count", count}});
    if (answer && answer->after == count) player.Play(answer->steps);
  }
}

void ScriptedFrontEnd::ReportMistake(const std::string& mistake) {
  transcript_.Write({{"event", "script-error"}, {"text", mistake}});
}

int ScriptedFrontEnd::RunModal(CPropertySheet& sheet) {
  ScriptedSheetWindow window(sheet, transcript_);
  const std::string title = ToUtf8(sheet.Title());
  const auto answer = TakeAnswer({"sheet", ToUtf8(sheet.ClassName()), title, ""});
  transcript_.Write({{"event", "sheet"}, {"title", title}, {"page", sheet.GetActiveIndex()}});
  sheet.Attach(&window);
  sheet.Create();
  pressed_.clear();
  StepPlayer player(sheet, transcript_, pressed_);
  if (answer) player.Play(answer->steps);
  player.Press("Cancel");
  RecordClosed(sheet);
  sheet.Destroy();
  sheet.Attach(nullptr);
  return sheet.Result();
}

std::optional<std::u16string> ScriptedFrontEnd::Chosen(const Shown& shown) {
  const auto answer = TakeAnswer(shown);
  if (!answer || !answer->choose) return {};
  return ReplaceAll(FromUtf8(*answer->choose), u"/", u"\\");
}

std::optional<std::u16string> ScriptedFrontEnd::ChooseFile(const FileDialogRequest& request) {
  const bool opens = request.kind == FileDialogKind::kOpen;
  auto chosen = Chosen({"file", "", ToUtf8(request.title), ToUtf8(request.filter)});
  if (opens && chosen && !TheServices().files->Exists(*chosen)) {
    ReportMistake("file dialog: no file " + ToUtf8(*chosen) + " to open");
    chosen.reset();
  }
  transcript_.Write({{"event", "file"},
                     {"kind", opens ? "open" : "save"},
                     {"title", ToUtf8(request.title)},
                     {"filter", ToUtf8(request.filter)},
                     {"extension", ToUtf8(request.defaultExtension)},
                     {"name", ToUtf8(request.startName)},
                     {"folder", ToUtf8(request.startFolder)},
                     {"answer", TextOrNull(chosen)}});
  return chosen;
}

std::optional<std::u16string> ScriptedFrontEnd::ChooseFolder(const FolderDialogRequest& request) {
  const auto chosen = Chosen({"folder", "", ToUtf8(request.title), ""});
  transcript_.Write(
      {{"event", "folder"}, {"title", ToUtf8(request.title)}, {"answer", TextOrNull(chosen)}});
  return chosen;
}

void ScriptedFrontEnd::OpenLink(const std::u16string& url) {
  transcript_.Write({{"event", "link"}, {"url", ToUtf8(url)}});
}

// Any font will do where nothing is drawn.
int ScriptedFrontEnd::TextWidth(const Control& control, const std::u16string& text) {
  return static_cast<int>(text.size()) * AverageCharacterWidth(control);
}

int ScriptedFrontEnd::AverageCharacterWidth(const Control&) { return 6; }

Rectangle ScriptedFrontEnd::DesktopRectangle() { return {0, 0, 1024, 768}; }

Rectangle ScriptedFrontEnd::DialogRectangle(const CDialog& dialog) {
  constexpr int kWidth = 320;
  constexpr int kRow = 24;
  return {0, 0, kWidth, kRow * (2 + static_cast<int>(dialog.Controls().size()))};
}

namespace {

AnswerScript ReadScriptFile(const std::string& path) {
  if (path.empty()) return {};
  try {
    std::ifstream stream{PathFromUtf8(path)};
    if (!stream) throw std::runtime_error("it cannot be opened");
    return AnswerScript::Parse(nlohmann::json::parse(stream));
  } catch (const std::exception& mistake) {
    std::cerr << "The script " << path << " is wrong: " << mistake.what() << std::endl;
    return {};
  }
}

Transcript& EnvironmentTranscript() {
  static Transcript console(std::cerr);
  const std::string path = EnvironmentText("QUTAV_TRANSCRIPT").value_or("");
  if (path.empty()) return console;
  static Transcript file(path);
  return file;
}

}  // namespace

ScriptedFrontEnd& EnvironmentFrontEnd() {
  static ScriptedFrontEnd frontEnd(ReadScriptFile(EnvironmentText("QUTAV_SCRIPT").value_or("")),
                                   EnvironmentTranscript());
  return frontEnd;
}

}  // namespace qutav
