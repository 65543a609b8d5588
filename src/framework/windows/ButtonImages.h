// The pictures on image buttons.
#pragma once

#include "framework/CStretchBitmapButton.h"
#include "platform/windows/System.h"

namespace qutav {

/// Draws a button's picture so that it fills the rectangle, sharp at any size; what stands there
/// shines through where the picture has nothing. `ButtonBitmap::kNone` draws nothing. The caller
/// keeps a `GdiPlusSession`, without which nothing is drawn.
void DrawButtonImage(HDC target, const RECT& place, ButtonImage image, ButtonBitmap look);

}  // namespace qutav
