#pragma once

namespace qutav::host {

/// A package was made, or the script ran to its end.
inline constexpr int kDone = 0;

/// No package was made, or the script threw.
inline constexpr int kNotDone = 1;

/// The command line, the document or the library is wrong.
inline constexpr int kRefused = 2;

}  // namespace qutav::host
