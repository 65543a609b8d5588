// Command lines of the launchers: options with or without a value, and operands, in any order.
#pragma once

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace launcher {

/// A command line that is not understood; says why.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// What a program takes.
struct OptionNames {
  std::set<std::string> flags;   ///< without a value
  std::set<std::string> values;  ///< followed by a value
};

/// What it was given.
struct Options {
  std::set<std::string> flags;
  std::map<std::string, std::string> values;
  std::vector<std::string> operands;
};

/// Reads a command line. Throws `UsageError` for an unknown option and for a missing value.
Options ReadOptions(const std::vector<std::string>& arguments, const OptionNames& names);

}  // namespace launcher
