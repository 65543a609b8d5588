#pragma once

#include <vector>

#include "platform/windows/System.h"

namespace qutav {

/// Gives the buttons in a row at the bottom of a window the width that their texts need. Where all
/// have it, nothing moves. Otherwise those that need no more stay as wide as they are; the row
/// keeps its right end, and all gaps become as wide as the first.
void FitButtons(HWND window, std::vector<HWND> buttons);

}  // namespace qutav
