#pragma once

#include <string>
#include <vector>

namespace qutav::host {

/// The command line from which a program takes these arguments, by the rules of
/// `CommandLineToArgvW`.
std::u16string JoinCommandLine(const std::u16string& program,
                               const std::vector<std::u16string>& arguments);

}  // namespace qutav::host
