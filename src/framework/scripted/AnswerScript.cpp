#include "framework/scripted/AnswerScript.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "platform/Environment.h"
#include "platform/Utf8Path.h"

namespace qutav {
namespace {

using nlohmann::json;

using Members = std::vector<std::string_view>;

const Members kStepMembers = {"page", "select", "set", "press", "show", "picture"};
const Members kAnswerMembers = {"to",    "contains", "class", "title", "select",
                                "set",   "page",     "press", "show",  "picture",
                                "steps", "choose",   "after", "repeat"};
constexpr std::array<std::string_view, 5> kKinds = {"message", "dialog", "sheet", "file", "folder"};

std::string ReadSecretFile(const std::string& path) {
  std::ifstream stream(PathFromUtf8(path), std::ios::binary);
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
  auto value = EnvironmentText(name);
  if (!value) throw std::runtime_error("the variable " + name + " is not set");
  return std::move(*value);
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

void RefuseUnknownMembers(const json& source, const Members& known, const std::string& name) {
  if (!source.is_object()) throw std::runtime_error(name + " is an object");
  for (const auto& [member, value] : source.items()) {
    if (std::find(known.begin(), known.end(), member) == known.end()) {
      throw std::runtime_error(name + " has no member \"" + member + "\"");
    }
  }
}

ScriptStep ReadStep(const json& source) {
  ScriptStep step;
  step.page = ReadOptional<std::string>(source, "page").value_or("");
  step.select = ReadValues(source, "select");
  step.set = ReadValues(source, "set");
  step.press = ReadPress(source);
  step.show = ReadOptional<bool>(source, "show").value_or(false);
  step.picture = ReadOptional<std::string>(source, "picture").value_or("");
  return step;
}

// An answer's own members are its first step.
std::vector<ScriptStep> ReadSteps(const json& answer) {
  std::vector<ScriptStep> steps = {ReadStep(answer)};
  if (!answer.contains("steps")) return steps;
  for (const json& step : answer.at("steps")) {
    RefuseUnknownMembers(step, kStepMembers, "a step");
    steps.push_back(ReadStep(step));
  }
  return steps;
}

ScriptAnswer ReadAnswer(const json& source) {
  RefuseUnknownMembers(source, kAnswerMembers, "an answer");
  ScriptAnswer answer;
  answer.to = source.at("to").get<std::string>();
  answer.contains = ReadOptional<std::string>(source, "contains");
  answer.className = ReadOptional<std::string>(source, "class");
  answer.title = ReadOptional<std::string>(source, "title");
  answer.steps = ReadSteps(source);
  answer.choose = ReadOptional<std::string>(source, "choose");
  answer.after = ReadAfter(source);
  answer.repeat = ReadOptional<bool>(source, "repeat").value_or(false);
  if (std::find(kKinds.begin(), kKinds.end(), answer.to) == kKinds.end()) {
    throw std::runtime_error(
        "\"to\" is \"message\", \"dialog\", \"sheet\", \"file\" or \"folder\"");
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
