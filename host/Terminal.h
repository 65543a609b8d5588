#pragma once

#include <optional>
#include <string>

namespace qutav::host {

bool StandardInputIsTerminal();
bool StandardErrorIsTerminal();

/// Asks on the terminal and reads one line without showing it. Nothing when there is no terminal
/// or its input ends.
std::optional<std::string> ReadPassword(const std::string& prompt);

}  // namespace qutav::host
