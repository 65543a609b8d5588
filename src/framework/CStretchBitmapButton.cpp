#include "framework/CStretchBitmapButton.h"

#include <algorithm>
#include <utility>

#include "framework/ControlVisitor.h"

namespace qutav {

void CStretchBitmapButton::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

ButtonBitmap CStretchBitmapButton::DrawItem(bool selected) const {
  if (!hasNormal) return ButtonBitmap::kNone;
  if (selected && hasSelected) return ButtonBitmap::kSelected;
  if (focused && hasFocused) return ButtonBitmap::kFocused;
  if (!enabled && hasDisabled) return ButtonBitmap::kDisabled;
  return ButtonBitmap::kNormal;
}

// The mouse that goes straight from one to the next leaves both lit, until it is away from all.
void HoverButtons::OnMouseMove(const Control* under) {
  const auto found = std::find(buttons_.begin(), buttons_.end(), under);
  if (found != buttons_.end()) {
    (*found)->focused = true;
    return;
  }
  for (CStretchBitmapButton* button : buttons_) button->focused = false;
}

void PrepareImageButton(CStretchBitmapButton& button, ButtonImage image, HoverButtons& hover,
                        std::function<void()> onClick) {
  button.image = image;
  button.onClick = std::move(onClick);
  hover.Add(button);
}

}  // namespace qutav
