#pragma once

#include <string>

#include "platform/windows/System.h"

namespace qutav {

/// A window's text (`WM_GETTEXT`).
std::u16string WindowText(HWND window);
/// Sets it, unless it is this text already, which would move the caret.
void SetWindowTextIfOther(HWND window, const std::u16string& text);

}  // namespace qutav
