#include "host/TranscriptText.h"

#include "host/PublishRecord.h"

namespace qutav::host {
namespace {

std::string TextMember(const nlohmann::json& event, const char* name) {
  const auto found = event.find(name);
  return found != event.end() && found->is_string() ? found->get<std::string>() : std::string();
}

// Text in a box may have line ends of either kind; the lines behind the first one are set in.
std::string Indented(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\n') out += "\n    ";
    if (c != '\n' && c != '\r') out += c;
  }
  while (out.ends_with(' ') || out.ends_with('\n')) out.pop_back();
  return out;
}

std::string MessageText(const nlohmann::json& event) {
  const std::string icon = TextMember(event, "icon");
  std::string line = TextMember(event, "title");
  // A box of the system's own has no icon.
  if (icon != "none") line += ", " + icon;
  line += ": " + Indented(TextMember(event, "text"));
  const auto buttons = event.find("buttons");
  const bool question = buttons != event.end() && buttons->is_array() && buttons->size() > 1;
  if (question) line += "\n    (answered: " + TextMember(event, "answer") + ")";
  return line;
}

std::string ClosedText(const nlohmann::json& event) {
  const std::string answer = TextMember(event, "answer");
  if (answer.empty()) return "";
  return TextMember(event, "title") + " (answered: " + answer + ")";
}

}  // namespace

std::string ReadableEvent(const nlohmann::json& event) {
  const std::string kind = TextMember(event, "event");
  if (kind == "message") return MessageText(event);
  if (kind == "closed") return ClosedText(event);
  if (kind == "link") return "Page: " + TextMember(event, "url");
  if (kind == "script-error") return "Front end script: " + TextMember(event, "text");
  return "";
}

std::string ProgressText(const nlohmann::json& event) {
  const auto count = event.find("count");
  const bool ticks = TextMember(event, "event") == "tick" &&
                     TextMember(event, "class") == kProgressDialogClass && count != event.end() &&
                     count->is_number_integer();
  return ticks ? "Publishing ... " + std::to_string(count->get<long long>()) + " s" : "";
}

}  // namespace qutav::host
