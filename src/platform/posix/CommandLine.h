#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qutav {

/// Splits a command line as `CommandLineToArgvW` does: the program's name ends at its closing quote
/// or first blank, backslashes are plain unless a double quote follows them, and two double quotes
/// inside a quoted part give one and end it.
std::vector<std::u16string> SplitCommandLine(std::u16string_view line);

}  // namespace qutav
