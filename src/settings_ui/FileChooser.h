#pragma once

#include <optional>
#include <string>

namespace qutav {

/// Lets the user choose a file that exists (`GetOpenFileNameW`), over the window with the focus.
/// `filter` holds pairs of a name and a pattern, with "|" behind each and one more at the end. The
/// dialog starts in `startFolder`, or where it likes for an empty one. Nothing when it was
/// cancelled.
std::optional<std::u16string> ChooseFileToOpen(const std::u16string& filter,
                                               const std::u16string& startFolder = {});

}  // namespace qutav
