#pragma once

#include <optional>
#include <string>

namespace qutav::host {

bool StandardInputIsTerminal();
bool StandardErrorIsTerminal();

/// Lets the terminal show what is written to it as UTF-8.
void ShowUtf8();

/// Asks on the terminal and reads one line without showing it. Nothing when there is no terminal
/// or its input ends.
std::optional<std::string> ReadPassword(const std::string& prompt);

}  // namespace qutav::host
