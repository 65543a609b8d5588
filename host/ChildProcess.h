#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qutav::host {

/// How a program ended.
struct ChildEnd {
  enum class Kind { kExited, kKilled };
  Kind kind = Kind::kExited;
  /// The exit code or the signal.
  int number = 0;
};

/// Runs a program to its end. What it writes to its standard output goes to our standard error;
/// a signal that ends us is passed on to it. Throws std::system_error when it cannot be started.
ChildEnd RunToEnd(const std::filesystem::path& program, const std::vector<std::string>& arguments);

}  // namespace qutav::host
