#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace qutav::host {

/// An event of the transcript as the user reads it; empty for events that say nothing to them.
std::string ReadableEvent(const nlohmann::json& event);

/// The progress line for a tick of the progress dialog; empty for every other event.
std::string ProgressText(const nlohmann::json& event);

}  // namespace qutav::host
