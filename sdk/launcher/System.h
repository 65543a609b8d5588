// What the launchers need of the system, and the one function that each of them is.
#pragma once

#include <string>
#include <vector>

namespace launcher {

/// The program: its arguments in UTF-8, without its own name; the exit code.
int Run(const std::vector<std::string>& arguments);

/// The id of this process.
unsigned long ProcessId();

}  // namespace launcher
