#pragma once

#include <string>

#include "platform/windows/System.h"

namespace qutav {

/// Writes a window as it is on the screen, frame and all, to a PNG file; false when that fails.
bool WriteWindowPicture(HWND window, const std::string& path);

}  // namespace qutav
