// What both launchers do with what they were given: tell it, record it, and stay.
#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace launcher {

/// Facts about a launch, in the order in which they are told.
using Facts = nlohmann::ordered_json;

/// Runs a launcher: `examine` takes the command line and gives the facts or throws. They are
/// appended as one line of JSON to the file that the environment variable `TAV_LAUNCH_RECORD`
/// names, and then printed. The process stays until it is killed, or ends with the code in
/// `TAV_LAUNCH_EXIT`. A failure is told and recorded as "error" and ends with 1, a wrong command
/// line with 2.
int Launch(const std::string& program, const std::vector<std::string>& arguments,
           const std::function<Facts(const std::vector<std::string>&)>& examine);

}  // namespace launcher
