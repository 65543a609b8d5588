#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/ScriptValue.h"

namespace qutav::host {

/// The launcher's program name, without the ending that a system gives its programs.
inline constexpr const char* kDebugLauncherName = "wep";

/// A program with its arguments.
struct ProgramCall {
  std::filesystem::path program;
  std::vector<std::string> arguments;
};

/// The start of the launcher that the thirteen arguments of `debugTAVMovie` ask for.
ProgramCall LauncherCall(const std::vector<ScriptValue>& arguments);

}  // namespace qutav::host
