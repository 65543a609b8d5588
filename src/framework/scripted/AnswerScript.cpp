#include "framework/scripted/AnswerScript.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace qutav {
namespace {

using nlohmann::json;

constexpr std::array<std::string_view, 10> kMembers = {
    "to", "contains", "class", "title", "set", "settings", "registry", "after", "press", "repeat"};

std::string ReadSecretFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read the file " + path);
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  std::string text = std::move(bytes).str();
  if (!text.ends_with('\n')) return text;
  text.pop_back();
  if (text.ends_with('\r')) text.pop_back();
  return text;
}

std::string ReadVariable(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (value == nullptr) throw std::runtime_error("the variable " + name + " is not set");
  return value;
}

std::string ValueText(const json& value) {
  if (value.is_string()) return value.get<std::string>();
  if (value.is_boolean()) return value.get<bool>() ? "true" : "false";
  if (value.is_object() && value.contains("environment")) return ReadVariable(value["environment"]);
  if (value.is_object() && value.contains("file")) return ReadSecretFile(value["file"]);
  throw std::runtime_error("a value is a text, true, false, or names an environment or a file");
}

ScriptValues ReadValues(const json& answer, const char* member) {
  ScriptValues values;
  if (!answer.contains(member)) return values;
  for (const auto& [key, value] : answer.at(member).items()) {
    values.emplace_back(key, ValueText(value));
  }
  return values;
}

template <typename Value>
std::optional<Value> ReadOptional(const json& answer, const char* member) {
  if (!answer.contains(member)) return {};
  return answer.at(member).get<Value>();
}

std::optional<unsigned> ReadAfter(const json& answer) {
  const auto ticks = ReadOptional<int>(answer, "after");
  if (!ticks) return {};
  if (*ticks < 0) throw std::runtime_error("\"after\" is a number of ticks, 0 or more");
  return static_cast<unsigned>(*ticks);
}

std::vector<std::string> ReadPress(const json& answer) {
  if (!answer.contains("press")) return {};
  const json& press = answer.at("press");
  if (press.is_string()) return {press.get<std::string>()};
  return press.get<std::vector<std::string>>();
}

void RefuseUnknownMembers(const json& answer) {
  for (const auto& [member, value] : answer.items()) {
    if (std::find(kMembers.begin(), kMembers.end(), member) == kMembers.end()) {
      throw std::runtime_error("an answer has no member \"" + member + "\"");
    }
  }
}

ScriptAnswer ReadAnswer(const json& source) {
  if (!source.is_object()) throw std::runtime_error("an answer is an object");
  RefuseUnknownMembers(source);
  ScriptAnswer answer;
  answer.to = source.at("to").get<std::string>();
  answer.contains = ReadOptional<std::string>(source, "contains");
  answer.className = ReadOptional<std::string>(source, "class");
  answer.title = ReadOptional<std::string>(source, "title");
  answer.set = ReadValues(source, "set");
  answer.settings = ReadValues(source, "settings");
  answer.registry = ReadValues(source, "registry");
  answer.after = ReadAfter(source);
  answer.press = ReadPress(source);
  answer.repeat = ReadOptional<bool>(source, "repeat").value_or(false);
  if (answer.to != "message" && answer.to != "dialog" && answer.to != "sheet") {
    throw std::runtime_error("\"to\" is \"message\", \"dialog\" or \"sheet\"");
  }
  return answer;
}

bool Fits(const ScriptAnswer& answer, const Shown& shown) {
  return answer.to == shown.to && answer.className.value_or(shown.className) == shown.className &&
         answer.title.value_or(shown.title) == shown.title &&
         shown.text.find(answer.contains.value_or("")) != std::string::npos;
}

}  // namespace

AnswerScript AnswerScript::Parse(const json& script) {
  AnswerScript parsed;
  if (!script.is_object() || !script.contains("answers") || !script["answers"].is_array()) {
    throw std::runtime_error("a script is an object with a list \"answers\"");
  }
  try {
    for (const json& answer : script["answers"]) parsed.answers_.push_back(ReadAnswer(answer));
  } catch (const json::exception& mistake) {
    throw std::runtime_error(mistake.what());
  }
  return parsed;
}

std::optional<ScriptAnswer> AnswerScript::Take(const Shown& shown) {
  const auto found = std::find_if(answers_.begin(), answers_.end(),
                                  [&](const ScriptAnswer& answer) { return Fits(answer, shown); });
  if (found == answers_.end()) return {};
  ScriptAnswer answer = *found;
  if (!answer.repeat) answers_.erase(found);
  return answer;
}

}  // namespace qutav
