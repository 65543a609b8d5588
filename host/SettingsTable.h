#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace qutav::host {

/// A page of the settings sheet as lines for a reader, from a transcript's record of its controls.
/// A line names a control as scripts and "--set" address it.
std::string SettingsTable(const nlohmann::json& page);

}  // namespace qutav::host
