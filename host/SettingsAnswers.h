#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace qutav::host {

/// One value for a control of the settings sheet.
struct SettingsChange {
  enum class Kind { kText, kEnvironment, kFile };
  std::string page;
  std::string label;
  Kind kind = Kind::kText;
  /// The value, or the name of the variable or file that holds it.
  std::string value;
};

/// Reads "PAGE.LABEL=VALUE"; throws Refusal when it is not of this form.
SettingsChange ParseSettingsChange(const std::string& text, SettingsChange::Kind kind);

/// A front end script that makes the changes, shows every page and leaves the sheet: by OK when
/// there were changes.
nlohmann::ordered_json SettingsAnswers(const std::vector<SettingsChange>& changes, bool forIos);

}  // namespace qutav::host
