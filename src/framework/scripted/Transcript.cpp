#include "framework/scripted/Transcript.h"

#include <fstream>
#include <iostream>

#include "platform/Utf8Path.h"

namespace qutav {
namespace {

using Json = nlohmann::ordered_json;

// Empty for the events that a person on a terminal does not need.
std::string ConsoleText(const Json& event) {
  const std::string kind = event.at("event");
  if (kind == "message") {
    return event.at("title").get<std::string>() + ": " + event.at("text").get<std::string>();
  }
  if (kind == "script-error") return "The script is wrong. " + event.at("text").get<std::string>();
  if (kind == "sheet") return event.at("title").get<std::string>();
  if (kind == "dialog" && !event.at("controls").empty()) {
    return event.at("controls").front().at("text");
  }
  return {};
}

}  // namespace

Transcript::Transcript(const std::string& path)
    : file_(std::make_unique<std::ofstream>(PathFromUtf8(path), std::ios::app | std::ios::binary)) {
  if (!*file_) std::cerr << "The transcript " << path << " cannot be written.\n";
}

Transcript::Transcript(std::ostream& console) : console_(&console) {}

void Transcript::Write(const Json& event) {
  const std::lock_guard lock(mutex_);
  if (event.at("event") == "script-error" && console_ == nullptr) {
    std::cerr << ConsoleText(event) << std::endl;
  }
  if (file_ != nullptr) {
    *file_ << event.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
    return;
  }
  const std::string text = ConsoleText(event);
  if (!text.empty()) *console_ << text << std::endl;
}

}  // namespace qutav
