#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/windows/Handle.h"
#include "platform/windows/System.h"

namespace qutav::host {

/// A program that has been started and does not run yet.
struct SuspendedProgram {
  Handle process;
  Handle thread;
};

/// Starts a program whose standard error is ours and whose standard output is one of our streams
/// (`STD_OUTPUT_HANDLE`, `STD_ERROR_HANDLE`). Without `reads` it has nothing to read. Throws
/// std::system_error when it cannot be started.
SuspendedProgram StartSuspended(const std::filesystem::path& program,
                                const std::vector<std::string>& arguments, DWORD output,
                                bool reads);

}  // namespace qutav::host
