#include "host/SettingsAnswers.h"

#include "host/Refusal.h"

namespace qutav::host {
namespace {

using Json = nlohmann::ordered_json;

const std::vector<std::string> kAndroidPages = {"General", "Deployment", "Icons", "Permissions",
                                                "Languages"};
const std::vector<std::string> kIosPages = {"General", "Deployment", "Icons", "Languages"};

// "true" and "false" are switches for a check box and texts for a field; the front end takes the
// one for the other.
Json ValueOf(const SettingsChange& change) {
  switch (change.kind) {
    case SettingsChange::Kind::kEnvironment:
      return {{"environment", change.value}};
    case SettingsChange::Kind::kFile:
      return {{"file", change.value}};
    case SettingsChange::Kind::kText:
      break;
  }
  return change.value;
}

}  // namespace

SettingsChange ParseSettingsChange(const std::string& text, SettingsChange::Kind kind) {
  const std::size_t dot = text.find('.');
  const std::size_t sign = text.find('=', dot == text.npos ? 0 : dot);
  if (dot == text.npos || dot == 0 || sign == text.npos || sign == dot + 1) {
    throw Refusal("\"" + text + "\" is not of the form PAGE.LABEL=VALUE");
  }
  return {text.substr(0, dot), text.substr(dot + 1, sign - dot - 1), kind, text.substr(sign + 1)};
}

Json SettingsAnswers(const std::vector<SettingsChange>& changes, bool forIos) {
  Json steps = Json::array();
  for (const SettingsChange& change : changes) {
    steps.push_back({{"page", change.page}, {"set", {{change.label, ValueOf(change)}}}});
  }
  for (const std::string& page : forIos ? kIosPages : kAndroidPages) {
    steps.push_back({{"page", page}, {"show", true}});
  }
  if (!changes.empty()) steps.push_back({{"press", {"OK"}}});
  return {{"answers", Json::array({{{"to", "sheet"}, {"steps", steps}}})}};
}

}  // namespace qutav::host
