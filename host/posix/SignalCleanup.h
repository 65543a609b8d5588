#pragma once

#include <sys/types.h>

#include <filesystem>

namespace qutav::host {

/// Removes the file when Ctrl-C, a termination or a lost terminal ends the process.
void RemoveAtSignal(const std::filesystem::path& file);

/// Removes the file now and forgets it.
void RemoveNow(const std::filesystem::path& file);

/// A signal that ends this process goes to that child as well; 0 for none.
void PassSignalsTo(pid_t child);

}  // namespace qutav::host
