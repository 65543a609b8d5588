// Keys and the mouse, as the system gets them from their devices: what is struck goes to the window
// with the focus, and is delivered by the message loop that runs next.
#pragma once

#include <string>

#include "platform/windows/System.h"

namespace qutav::test {

/// Strikes a key by its virtual code.
void Strike(WORD key);

/// Strikes a key while another is held down.
void StrikeWith(WORD held, WORD key);

/// Types a text, character by character.
void TypeText(const std::u16string& text);

/// Moves the mouse to a point of a window's client area.
void MoveMouse(HWND window, int x, int y);

/// The same, and clicks there.
void ClickAt(HWND window, int x, int y);

}  // namespace qutav::test
