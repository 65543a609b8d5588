#include "framework/scripted/ScriptedFrontEnd.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "framework/CPropertySheet.h"
#include "framework/scripted/ControlRecord.h"
#include "platform/Services.h"
#include "platform/Text.h"

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

// False when the control is not one to fill, or a check box is given no switch.
bool FillControl(Control& control, const std::string& value) {
  if (control.kind == ControlKind::kCheckBox) {
    control.checked = value == "true";
    return control.checked || value == "false";
  }
  control.text = FromUtf8(value);
  return control.kind == ControlKind::kEdit || control.kind == ControlKind::kPassword;
}

// Null for a label that no button has, and for one that cannot be pressed now.
Control* FindButton(CDialog& dialog, const std::string& label) {
  Control* control = FindControl(dialog, FromUtf8(label));
  const bool pressable = control != nullptr && control->kind == ControlKind::kButton &&
                         control->enabled && control->visible;
  return pressable ? control : nullptr;
}

Json OpeningRecord(const CDialog& dialog) {
  return {{"event", "dialog"},
          {"class", ToUtf8(dialog.ClassName())},
          {"title", ToUtf8(dialog.Title())},
          {"controls", RecordControls(dialog)}};
}

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
  if (answer && !answer->press.empty()) {
    const std::string& button = answer->press.front();
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
  transcript_.Write({{"event", "closed"},
                     {"class", ToUtf8(dialog.ClassName())},
                     {"title", ToUtf8(dialog.Title())},
                     {"answer", pressed_.empty() ? Json(nullptr) : Json(pressed_)},
                     {"result", dialog.Result()}});
  dialog.Destroy();
  return dialog.Result();
}

void ScriptedFrontEnd::RunDialog(CDialog& dialog, const std::optional<ScriptAnswer>& answer) {
  if (answer && !Fill(dialog, answer->set)) return;
  const bool atOnce = answer && (answer->after.value_or(0) == 0 || dialog.Timers().empty());
  if (atOnce) Press(dialog, answer->press);
  if (!dialog.HasEnded() && !dialog.Timers().empty()) RunTimers(dialog, answer);
  if (!dialog.HasEnded()) PressOne(dialog, "Cancel");
}

// The loop of a dialog that ends itself: its timer fires until it does, or until the script
// presses.
void ScriptedFrontEnd::RunTimers(CDialog& dialog, const std::optional<ScriptAnswer>& answer) {
  for (unsigned count = 1; !dialog.HasEnded() && !dialog.Timers().empty(); ++count) {
    const auto [id, period] = *dialog.Timers().begin();
    TheServices().clock->Sleep(period);
    dialog.OnTimer(id);
    transcript_.Write({{"event", "tick"}, {"class", ToUtf8(dialog.ClassName())}, {"count", count}});
    if (answer && answer->after == count && !dialog.HasEnded()) Press(dialog, answer->press);
  }
}

bool ScriptedFrontEnd::Fill(CDialog& dialog, const ScriptValues& values) {
  for (const auto& [label, value] : values) {
    Control* control = FindControl(dialog, FromUtf8(label));
    if (control != nullptr && FillControl(*control, value)) continue;
    CancelForMistake(dialog, "no control \"" + label + "\" that takes this value");
    return false;
  }
  return true;
}

void ScriptedFrontEnd::Press(CDialog& dialog, const std::vector<std::string>& buttons) {
  for (const std::string& button : buttons) {
    if (dialog.HasEnded() || !PressOne(dialog, button)) return;
  }
}

bool ScriptedFrontEnd::PressOne(CDialog& dialog, const std::string& label) {
  Control* button = FindButton(dialog, label);
  if (button == nullptr) {
    CancelForMistake(dialog, "no button \"" + label + "\" to press");
    return false;
  }
  button->onClick();
  pressed_ = label;  // behind the click, which may have shown another dialog
  return true;
}

void ScriptedFrontEnd::ReportMistake(const std::string& mistake) {
  transcript_.Write({{"event", "script-error"}, {"text", mistake}});
}

void ScriptedFrontEnd::CancelForMistake(CDialog& dialog, const std::string& mistake) {
  ReportMistake(ToUtf8(dialog.ClassName()) + ": " + mistake);
  dialog.OnCancel();
}

int ScriptedFrontEnd::RunModal(CPropertySheet& sheet) {
  sheet.Create();
  const std::string title = ToUtf8(sheet.Title());
  const auto answer = TakeAnswer({"sheet", ToUtf8(sheet.ClassName()), title, ""});
  const ScriptAnswer given = answer.value_or(ScriptAnswer{});
  for (const auto& [key, value] : given.settings) sheet.PutSetting(FromUtf8(key), FromUtf8(value));
  for (const auto& [name, value] : given.registry) {
    sheet.PutRegistryValue(FromUtf8(name), FromUtf8(value));
  }
  transcript_.Write({{"event", "sheet"},
                     {"title", title},
                     {"page", sheet.ActivePage()},
                     {"settings", RecordValues(given.settings)},
                     {"registry", RecordValues(given.registry)}});
  std::vector<std::string> buttons = given.press;
  buttons.emplace_back("Cancel");
  for (const std::string& button : buttons) {
    if (sheet.HasEnded()) break;
    if (FindButton(sheet, button) != nullptr) {
      transcript_.Write({{"event", "pressed"}, {"title", title}, {"button", button}});
    }
    PressOne(sheet, button);
  }
  sheet.Destroy();
  return sheet.Result();
}

Rectangle ScriptedFrontEnd::DesktopRectangle() { return {0, 0, 1024, 768}; }

Rectangle ScriptedFrontEnd::DialogRectangle(const CDialog& dialog) {
  constexpr int kWidth = 320;
  constexpr int kRow = 24;
  return {0, 0, kWidth, kRow * (2 + static_cast<int>(dialog.Controls().size()))};
}

namespace {

AnswerScript ReadScriptFile(const char* path) {
  if (path == nullptr || *path == '\0') return {};
  try {
    std::ifstream stream(path);
    if (!stream) throw std::runtime_error("it cannot be opened");
    return AnswerScript::Parse(nlohmann::json::parse(stream));
  } catch (const std::exception& mistake) {
    std::cerr << "The script " << path << " is wrong: " << mistake.what() << std::endl;
    return {};
  }
}

Transcript& EnvironmentTranscript() {
  static Transcript console(std::cerr);
  const char* path = std::getenv("QUTAV_TRANSCRIPT");
  if (path == nullptr || *path == '\0') return console;
  static Transcript file{std::string(path)};
  return file;
}

}  // namespace

ScriptedFrontEnd& EnvironmentFrontEnd() {
  static ScriptedFrontEnd frontEnd(ReadScriptFile(std::getenv("QUTAV_SCRIPT")),
                                   EnvironmentTranscript());
  return frontEnd;
}

}  // namespace qutav
