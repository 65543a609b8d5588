#include "framework/scripted/ScriptDirector.h"

#include <fstream>
#include <iostream>
#include <stdexcept>
#include <utility>

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

Json TextOrNull(const std::optional<std::u16string>& text) {
  return text ? Json(ToUtf8(*text)) : Json(nullptr);
}

}  // namespace

ScriptDirector::ScriptDirector(AnswerScript script, Transcript& transcript)
    : script_(std::move(script)), transcript_(transcript) {}

std::optional<ScriptAnswer> ScriptDirector::TakeAnswer(const Shown& shown) {
  const std::lock_guard lock(mutex_);
  return script_.Take(shown);
}

int ScriptDirector::ShowMessage(const MessageBoxRequest& request) {
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

void ScriptDirector::ReportMistake(const std::string& mistake) {
  transcript_.Write({{"event", "script-error"}, {"text", mistake}});
}

std::optional<std::u16string> ScriptDirector::Chosen(const Shown& shown) {
  const auto answer = TakeAnswer(shown);
  if (!answer || !answer->choose) return {};
  return ReplaceAll(FromUtf8(*answer->choose), u"/", u"\\");
}

std::optional<std::u16string> ScriptDirector::ChooseFile(const FileDialogRequest& request) {
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

std::optional<std::u16string> ScriptDirector::ChooseFolder(const FolderDialogRequest& request) {
  const auto chosen = Chosen({"folder", "", ToUtf8(request.title), ""});
  transcript_.Write(
      {{"event", "folder"}, {"title", ToUtf8(request.title)}, {"answer", TextOrNull(chosen)}});
  return chosen;
}

void ScriptDirector::OpenLink(const std::u16string& url) {
  transcript_.Write({{"event", "link"}, {"url", ToUtf8(url)}});
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

ScriptDirector& EnvironmentDirector() {
  static ScriptDirector director(ReadScriptFile(EnvironmentText("QUTAV_SCRIPT").value_or("")),
                                 EnvironmentTranscript());
  return director;
}

}  // namespace qutav
