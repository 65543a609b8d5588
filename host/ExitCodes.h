#pragma once

namespace qutav::host {

/// What was asked for is done: a package was made, a launcher ran and ended well, every device runs
/// the package, the script ran to its end.
inline constexpr int kDone = 0;

/// It was begun and is not done.
inline constexpr int kNotDone = 1;

/// The command line, the document or the library is wrong; nothing was begun.
inline constexpr int kRefused = 2;

}  // namespace qutav::host
