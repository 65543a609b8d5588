#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qutav::host {

/// Starts a program that goes on by itself. It has nothing to read, and what it writes goes to our
/// standard error. Throws std::system_error when it cannot be started.
void StartProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments);

}  // namespace qutav::host
