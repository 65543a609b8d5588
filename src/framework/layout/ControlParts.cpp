// The controls themselves, in the system's usual sizes.
#include <algorithm>
#include <memory>

#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ListBox.h"
#include "framework/Picture.h"
#include "framework/layout/LayoutPart.h"
#include "framework/layout/Parts.h"
#include "framework/layout/TextWrap.h"

namespace qutav {
namespace {

// Dialog units.
constexpr int kChoiceHeight = 10;
constexpr int kChoiceMark = 14;   // the box or circle, and the gap behind it
constexpr int kFocusFrame = 2;    // above and below the text that it surrounds, together
constexpr int kFieldHeight = 12;  // that of a combo box, which the system gives by the font
constexpr int kFieldWidth = 100;
constexpr int kNumberWidth = 32;
constexpr int kBarWidth = 180;
constexpr int kBarHeight = 8;
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 14;
constexpr int kButtonPadding = 5;
constexpr int kListFrame = 4;  // above and below the rows of a field, together
constexpr int kCheckListHeading = 14;
constexpr int kCheckListRow = 10;

class TextPart final : public LayoutPart {
 public:
  explicit TextPart(const Label& label, int width = TextWrap::kOneLine)
      : label_(label), text_(label.text, width) {}

  int Width(const LayoutMeasure& measure) const override { return text_.Width(measure); }
  int Height(const LayoutMeasure& measure, int width) const override {
    return text_.Height(measure, width);
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Vertical(TextWrap::kLineHeight);
  }
  // Its text may become another: it takes the whole width.
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int height = Height(measure, area.Width());
    placement.Put(label_, {area.left, area.top, area.right, area.top + height});
  }

 private:
  const Label& label_;
  TextWrap text_;
};

// A check box or a radio button; a click beside its text is none on it.
class ChoicePart final : public LayoutPart {
 public:
  explicit ChoicePart(const Clickable& choice, int width = TextWrap::kOneLine)
      : choice_(choice), text_(choice.text, width) {}

  int Width(const LayoutMeasure& measure) const override {
    return Mark(measure) + text_.Width(measure);
  }
  int Height(const LayoutMeasure& measure, int width) const override {
    return std::max(LineHeight(measure),
                    text_.Height(measure, width - Mark(measure)) + measure.Vertical(kFocusFrame));
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Vertical(kChoiceHeight);
  }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int width = std::min(area.Width(), Mark(measure) + text_.OneLineWidth(measure));
    const int height = Height(measure, area.Width());
    placement.Put(choice_, {area.left, area.top, area.left + width, area.top + height});
  }

 private:
  static int Mark(const LayoutMeasure& measure) { return measure.Horizontal(kChoiceMark); }

  const Clickable& choice_;
  TextWrap text_;
};

class ButtonPart final : public LayoutPart {
 public:
  explicit ButtonPart(const Button& button) : button_(button) {}

  int Width(const LayoutMeasure& measure) const override {
    return std::max(measure.Horizontal(kButtonWidth),
                    measure.TextWidth(button_.text) + 2 * measure.Horizontal(kButtonPadding));
  }
  int Height(const LayoutMeasure& measure, int) const override { return LineHeight(measure); }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Vertical(kButtonHeight);
  }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    placement.Put(button_, {area.left, area.top, area.right, area.top + LineHeight(measure)});
  }

 private:
  const Button& button_;
};

class ImageButtonPart final : public LayoutPart {
 public:
  explicit ImageButtonPart(const CStretchBitmapButton& button) : button_(button) {}

  int Width(const LayoutMeasure& measure) const override { return LineHeight(measure); }
  int Height(const LayoutMeasure& measure, int) const override { return LineHeight(measure); }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Vertical(kFieldHeight);
  }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int side = LineHeight(measure);
    placement.Put(button_, {area.left, area.top, area.left + side, area.top + side});
  }

 private:
  const CStretchBitmapButton& button_;
};

struct FieldSize {
  int width = kFieldWidth;
  int height = kFieldHeight;
  bool growsWide = true;
  bool growsTall = false;
};

class FieldPart final : public LayoutPart {
 public:
  FieldPart(const Control& field, FieldSize size) : field_(field), size_(size) {}

  int Width(const LayoutMeasure& measure) const override { return measure.Horizontal(size_.width); }
  int Height(const LayoutMeasure& measure, int) const override {
    return measure.Vertical(size_.height);
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Vertical(std::min(size_.height, kFieldHeight));
  }
  bool GrowsWide() const override { return size_.growsWide; }
  bool GrowsTall() const override { return size_.growsTall; }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int width = size_.growsWide ? area.Width() : Width(measure);
    const int height = size_.growsTall ? area.Height() : Height(measure, width);
    placement.Put(field_, {area.left, area.top, area.left + width, area.top + height});
  }

 private:
  const Control& field_;
  FieldSize size_;
};

class PicturePart final : public LayoutPart {
 public:
  explicit PicturePart(const Picture& picture) : picture_(picture) {}

  int Width(const LayoutMeasure& measure) const override { return measure.Scaled(picture_.width); }
  int Height(const LayoutMeasure& measure, int) const override { return LineHeight(measure); }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Scaled(picture_.height);
  }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    placement.Put(picture_, {area.left, area.top, area.left + Width(measure),
                             area.top + LineHeight(measure)});
  }

 private:
  const Picture& picture_;
};

Layout FieldOf(const Control& field, FieldSize size) {
  return Layout(std::make_shared<FieldPart>(field, size));
}

}  // namespace

Layout::Layout(const Label& label) : Layout(std::make_shared<TextPart>(label)) {}
Layout::Layout(const Button& button) : Layout(std::make_shared<ButtonPart>(button)) {}
Layout::Layout(const CheckBox& box) : Layout(std::make_shared<ChoicePart>(box)) {}
Layout::Layout(const RadioButton& button) : Layout(std::make_shared<ChoicePart>(button)) {}
Layout::Layout(const CStretchBitmapButton& button)
    : Layout(std::make_shared<ImageButtonPart>(button)) {}
Layout::Layout(const Edit& edit) : Layout(FieldOf(edit, {})) {}
Layout::Layout(const ComboBox& combo) : Layout(FieldOf(combo, {})) {}
Layout::Layout(const ProgressBar& bar)
    : Layout(FieldOf(bar, {.width = kBarWidth, .height = kBarHeight})) {}
Layout::Layout(const Picture& picture) : Layout(std::make_shared<PicturePart>(picture)) {}

namespace layout {

Layout Wrapped(const Label& label, int width) {
  return Layout(std::make_shared<TextPart>(label, width));
}

Layout Wrapped(const CheckBox& box, int width) {
  return Layout(std::make_shared<ChoicePart>(box, width));
}

Layout Field(const Control& field, int width) { return FieldOf(field, {.width = width}); }

Layout Fixed(const Control& field, int width) {
  return FieldOf(field, {.width = width, .growsWide = false});
}

Layout Number(const Edit& edit) { return Fixed(edit, kNumberWidth); }

Layout Lines(const Edit& edit, int rows) {
  return FieldOf(edit, {.height = rows * TextWrap::kLineHeight + kListFrame});
}

Layout List(const ListBox& list, int rows, int width) {
  return FieldOf(
      list,
      {.width = width, .height = rows * TextWrap::kLineHeight + kListFrame, .growsTall = true});
}

Layout List(const CheckList& list, int rows, int width) {
  return FieldOf(list, {.width = width,
                        .height = kCheckListHeading + rows * kCheckListRow + kListFrame,
                        .growsTall = true});
}

}  // namespace layout
}  // namespace qutav
