#include "host/DocumentChecks.h"

#include <array>

namespace qutav::host {
namespace {

using Json = nlohmann::ordered_json;

enum class Kind { kText, kNameText, kFlag, kPixels, kObject };

struct MemberRule {
  const char* name;
  const char* pointer;
  Kind kind;
  bool required;
};

constexpr std::array<MemberRule, 10> kMembers = {{
    {"playerTarget", "/playerTarget", Kind::kNameText, true},
    {"scriptVersion", "/scriptVersion", Kind::kText, false},
    {"stage", "/stage", Kind::kObject, true},
    {"stage.width", "/stage/width", Kind::kPixels, true},
    {"stage.height", "/stage/height", Kind::kPixels, true},
    {"externalLibraryPath", "/externalLibraryPath", Kind::kText, false},
    {"movie", "/movie", Kind::kNameText, false},
    {"outputType", "/outputType", Kind::kText, false},
    {"debug", "/debug", Kind::kFlag, false},
    {"data", "/data", Kind::kObject, false},
}};

bool IsPixelCount(const Json& value) {
  constexpr long long kGreatest = 1000000;
  return value.is_number_integer() && value.get<long long>() > 0 &&
         value.get<long long>() <= kGreatest;
}

bool Fits(const Json& value, Kind kind) {
  switch (kind) {
    case Kind::kText:
      return value.is_string();
    case Kind::kNameText:
      return value.is_string() && !value.get_ref<const std::string&>().empty();
    case Kind::kFlag:
      return value.is_boolean();
    case Kind::kPixels:
      return IsPixelCount(value);
    case Kind::kObject:
      return value.is_object();
  }
  return false;
}

const char* WantedText(Kind kind) {
  switch (kind) {
    case Kind::kText:
      return "must be a text";
    case Kind::kNameText:
      return "must be a text that is not empty";
    case Kind::kFlag:
      return "must be true or false";
    case Kind::kPixels:
      return "must be a whole number from 1 to 1000000";
    case Kind::kObject:
      return "must be an object";
  }
  return "";
}

std::string MemberNamed(const std::string& name) { return "member \"" + name + "\" "; }

void CheckMembers(const Json& content, std::vector<std::string>& problems) {
  for (const MemberRule& rule : kMembers) {
    const Json::json_pointer pointer(rule.pointer);
    const bool parentHolds = content.contains(pointer.parent_pointer()) &&
                             content.at(pointer.parent_pointer()).is_object();
    // A stage that is missing or no object is told once, not once more for each member.
    if (!parentHolds) continue;
    if (content.contains(pointer)) {
      if (!Fits(content.at(pointer), rule.kind)) {
        problems.push_back(MemberNamed(rule.name) + WantedText(rule.kind));
      }
    } else if (rule.required) {
      problems.push_back(MemberNamed(rule.name) + "is missing");
    }
  }
}

void CheckData(const Json& content, std::vector<std::string>& problems) {
  const auto data = content.find("data");
  if (data == content.end() || !data->is_object()) return;
  for (const auto& [key, value] : data->items()) {
    if (!value.is_string() && !value.is_number()) {
      problems.push_back(MemberNamed("data." + key) + "must be a text or a number");
    }
  }
}

}  // namespace

std::vector<std::string> FindDocumentProblems(const Json& content) {
  if (!content.is_object()) return {"the file must hold one JSON object"};
  std::vector<std::string> problems;
  CheckMembers(content, problems);
  CheckData(content, problems);
  return problems;
}

}  // namespace qutav::host
