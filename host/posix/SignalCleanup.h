#pragma once

#include <filesystem>

namespace qutav::host {

/// Removes the file when Ctrl-C, a termination or a lost terminal ends the process.
void RemoveAtSignal(const std::filesystem::path& file);

/// Removes the file now and forgets it.
void RemoveNow(const std::filesystem::path& file);

}  // namespace qutav::host
