// Whether everything in a window can be read: what a layout promises, seen from the outside.
#pragma once

#include <string>
#include <vector>

#include "framework/Layout.h"
#include "platform/windows/System.h"

namespace qutav::test {

/// What is wrong with the children of a dialog, a page or a sheet, one sentence each: a text that
/// is cut, a field too low for a line, a window that is empty, covers another one, or comes nearer
/// to the edge than `margin`. Hidden windows count too. Figures are pixels; `dpi` says for which
/// resolution the windows were made.
std::vector<std::string> FaultsOf(HWND parent, unsigned dpi, Size margin);

/// The same with the margin that every dialog and every page has.
std::vector<std::string> FaultsOfDialog(HWND dialog, unsigned dpi);

}  // namespace qutav::test
