#pragma once

#include <string>

#include "platform/windows/System.h"

namespace qutav {

/// Activates a window and writes it as it is on the screen, frame and all, to a PNG file; false
/// when that fails.
bool WriteWindowPicture(HWND window, const std::string& path);

}  // namespace qutav
