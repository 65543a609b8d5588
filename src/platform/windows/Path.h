// How long names reach the system's file calls.
#pragma once

#include <string>

namespace qutav {

/// The full name of a path as `GetFullPathNameW` tells it, with backslashes; empty for no path.
std::u16string FullPath(const std::u16string& path);

/// The path as the system's calls take it. One that is too long for them gets the prefix `\\?\`,
/// with which they take up to 32,767 units.
std::u16string NativePath(const std::u16string& path);

}  // namespace qutav
