#pragma once

#include <filesystem>

namespace qutav::host {

/// Removes the file when Ctrl-C, Ctrl-Break or the closing of the console ends the process.
void RemoveAtInterrupt(const std::filesystem::path& file);

/// Removes the file now and forgets it.
void RemoveNow(const std::filesystem::path& file);

}  // namespace qutav::host
