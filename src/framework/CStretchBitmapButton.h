// Image buttons, and the way in which those of a dialog light up under the mouse.
#pragma once

#include <functional>
#include <vector>

#include "framework/Control.h"

namespace qutav {

/// What a button's picture shows.
enum class ButtonImage { kBrowse, kAddFile, kAddFolder, kAdd, kEdit, kDelete };

enum class ButtonBitmap { kNone, kNormal, kSelected, kFocused, kDisabled };

/// A button that is its picture, stretched to its size.
class CStretchBitmapButton final : public Clickable {
 public:
  void Accept(ControlVisitor& visitor) override;

  ButtonImage image = ButtonImage::kBrowse;
  /// Which bitmaps there are.
  bool hasNormal = true;
  bool hasSelected = true;
  bool hasFocused = true;
  bool hasDisabled = true;
  /// Whether it shows the focus, be it the keyboard's or the mouse's.
  bool focused = false;

  /// The bitmap to draw while the button is held down (`ODS_SELECTED`) or not.
  ButtonBitmap DrawItem(bool selected) const;
};

/// The image buttons of one dialog.
class HoverButtons {
 public:
  void Add(CStretchBitmapButton& button) { buttons_.push_back(&button); }
  /// A mouse move over a control, or over none: a button of these gets the focus message
  /// (`WM_SETFOCUS`), and away from all of them all lose it.
  void OnMouseMove(const Control* under);

 private:
  std::vector<CStretchBitmapButton*> buttons_;
};

/// Gives an image button its picture and its handler, and lets it light up under the mouse.
void PrepareImageButton(CStretchBitmapButton& button, ButtonImage image, HoverButtons& hover,
                        std::function<void()> onClick);

}  // namespace qutav
