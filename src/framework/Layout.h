// Where the controls of a dialog stand. A layout is made once, of parts that read like the dialog
// (`framework/layout/Parts.h`), and fits it to any language, font and resolution.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/FrontEnd.h"

namespace qutav {

struct Control;
struct Label;
struct Edit;
struct Button;
struct CheckBox;
struct RadioButton;
struct ProgressBar;
class ComboBox;
class CStretchBitmapButton;
class LayoutPart;
class Picture;

struct Size {
  int width = 0;
  int height = 0;
};

/// What arranging asks of the font and the screen. Pixels.
class LayoutMeasure {
 public:
  virtual ~LayoutMeasure() = default;
  /// A dialog unit is a quarter of the average character's width, and an eighth of its height.
  virtual int Horizontal(int dialogUnits) const = 0;
  virtual int Vertical(int dialogUnits) const = 0;
  /// Of one line in the dialog's font.
  virtual int TextWidth(const std::u16string& text) const = 0;
  /// Of a text wrapped at a width; East Asian text may wrap behind every character.
  virtual int TextHeight(const std::u16string& text, int width) const = 0;
  /// A length given for 96 DPI.
  virtual int Scaled(int pixels) const { return pixels; }
};

struct PlacedControl {
  const Control* control = nullptr;
  Rectangle place;
  /// Where the control's caption is shown as a label of its own; empty: nowhere.
  Rectangle caption;
};

/// A value; copies share what they describe. The controls must outlive it. Their texts and the
/// sizes of pictures are read whenever it is asked.
class Layout {
 public:
  /// Of nothing.
  Layout();
  explicit Layout(std::shared_ptr<const LayoutPart> part) : part_(std::move(part)) {}

  // A control as it usually stands; what can stand in several ways has functions in Parts.h.
  Layout(const Label& label);                  ///< on one line
  Layout(const Button& button);                ///< as wide as the place that it gets
  Layout(const CheckBox& box);                 ///< on one line
  Layout(const RadioButton& button);           ///< on one line
  Layout(const CStretchBitmapButton& button);  ///< a square as high as a field
  Layout(const Edit& edit);                    ///< of one line, stretching
  Layout(const ComboBox& combo);               ///< stretching
  Layout(const ProgressBar& bar);              ///< stretching
  Layout(const Picture& picture);              ///< at its own size

  /// The smallest size in which nothing is cut, with the outer margins.
  Size NaturalSize(const LayoutMeasure& measure) const;
  /// Every control once. Above the natural size the stretching parts grow; a smaller one counts as
  /// the natural one.
  std::vector<PlacedControl> Arrange(const LayoutMeasure& measure, Size size) const;

  const LayoutPart& Part() const { return *part_; }

 private:
  std::shared_ptr<const LayoutPart> part_;
};

}  // namespace qutav
