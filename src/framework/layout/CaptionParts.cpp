// Parts with a heading or a caption.
#include <algorithm>
#include <memory>
#include <utility>

#include "framework/ComboBox.h"
#include "framework/Picture.h"
#include "framework/layout/LayoutPart.h"
#include "framework/layout/Parts.h"
#include "framework/layout/TextWrap.h"

namespace qutav {
namespace {

using layout::FormLine;

// Dialog units.
constexpr int kCaptionGap = 3;  // between a caption and what is below it, or a picture above it
constexpr int kFrame = 7;
constexpr int kFrameHeading = 11;  // from the top of a frame to what is in it

class CaptionPart final : public LayoutPart {
 public:
  explicit CaptionPart(const Control& control) : control_(control), text_(control.caption) {}

  int Width(const LayoutMeasure& measure) const override { return text_.Width(measure); }
  int Height(const LayoutMeasure& measure, int width) const override {
    return text_.Height(measure, width);
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Vertical(TextWrap::kLineHeight);
  }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int height = Height(measure, area.Width());
    placement.PutCaption(control_, {area.left, area.top, area.right, area.top + height});
  }

 private:
  const Control& control_;
  TextWrap text_;
};

// A part on a width that was measured elsewhere.
class WidenedPart final : public LayoutPart {
 public:
  WidenedPart(Layout content, int width) : content_(std::move(content)), width_(width) {}

  int Width(const LayoutMeasure&) const override { return width_; }
  int Height(const LayoutMeasure& measure, int width) const override {
    return content_.Part().Height(measure, width);
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return content_.Part().LineHeight(measure);
  }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    content_.Part().Place(measure, area, placement);
  }

 private:
  Layout content_;
  int width_;
};

// A column of rows that begin with captions of one width.
class FormPart final : public LayoutPart {
 public:
  explicit FormPart(std::vector<FormLine> lines) : lines_(std::move(lines)) {}

  int Width(const LayoutMeasure& measure) const override {
    return AsColumn(measure).Part().Width(measure);
  }
  int Height(const LayoutMeasure& measure, int width) const override {
    return AsColumn(measure).Part().Height(measure, width);
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return AsColumn(measure).Part().LineHeight(measure);
  }
  bool GrowsWide() const override {
    return std::any_of(lines_.begin(), lines_.end(),
                       [](const FormLine& line) { return line.content.Part().GrowsWide(); });
  }
  bool GrowsTall() const override {
    return std::any_of(lines_.begin(), lines_.end(),
                       [](const FormLine& line) { return line.content.Part().GrowsTall(); });
  }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    AsColumn(measure).Part().Place(measure, area, placement);
  }

 private:
  Layout AsColumn(const LayoutMeasure& measure) const {
    int width = 0;
    for (const FormLine& line : lines_) {
      width = std::max(width, line.caption.Part().Width(measure));
    }
    layout::Parts rows;
    for (const FormLine& line : lines_) {
      rows.push_back(
          layout::Row({Layout(std::make_shared<WidenedPart>(line.caption, width)), line.content}));
    }
    return layout::Column(std::move(rows));
  }

  std::vector<FormLine> lines_;
};

class GroupPart final : public LayoutPart {
 public:
  GroupPart(const GroupBox& box, Layout content) : box_(box), content_(std::move(content)) {}

  // The frame shows a little of itself on both sides of the heading.
  int Width(const LayoutMeasure& measure) const override {
    const int sides = 2 * measure.Horizontal(kFrame);
    return sides + std::max(measure.TextWidth(box_.text), content_.Part().Width(measure));
  }
  int Height(const LayoutMeasure& measure, int width) const override {
    const int inside = width - 2 * measure.Horizontal(kFrame);
    return measure.Vertical(kFrameHeading) + content_.Part().Height(measure, inside) +
           measure.Vertical(kFrame);
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return measure.Vertical(TextWrap::kLineHeight);
  }
  bool GrowsWide() const override { return true; }
  bool GrowsTall() const override { return content_.Part().GrowsTall(); }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int side = measure.Horizontal(kFrame);
    placement.Put(box_, area);
    content_.Part().Place(measure,
                          {area.left + side, area.top + measure.Vertical(kFrameHeading),
                           area.right - side, area.bottom - measure.Vertical(kFrame)},
                          placement);
  }

 private:
  const GroupBox& box_;
  Layout content_;
};

// A picture on the line on which all of a gallery stand, its caption below.
class ExhibitPart final : public LayoutPart {
 public:
  ExhibitPart(const Picture& picture, std::vector<const Picture*> all)
      : picture_(picture), caption_(picture.caption), all_(std::move(all)) {}

  int Width(const LayoutMeasure& measure) const override {
    return std::max(measure.Scaled(picture_.width), caption_.Width(measure));
  }
  int Height(const LayoutMeasure& measure, int) const override {
    return Tallest(measure) + measure.Vertical(kCaptionGap) +
           measure.Vertical(TextWrap::kLineHeight);
  }
  int LineHeight(const LayoutMeasure& measure) const override { return Tallest(measure); }
  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int floor = area.top + Tallest(measure);
    const int ceiling = floor - measure.Scaled(picture_.height);
    placement.Put(picture_, Centred(area, measure.Scaled(picture_.width), ceiling, floor));
    const int top = floor + measure.Vertical(kCaptionGap);
    const int bottom = top + measure.Vertical(TextWrap::kLineHeight);
    placement.PutCaption(picture_, Centred(area, caption_.Width(measure), top, bottom));
  }

 private:
  int Tallest(const LayoutMeasure& measure) const {
    int height = 0;
    for (const Picture* picture : all_) height = std::max(height, picture->height);
    return measure.Scaled(height);
  }
  static Rectangle Centred(const Rectangle& area, int width, int top, int bottom) {
    const int left = area.left + (area.Width() - width) / 2;
    return {left, top, left + width, bottom};
  }

  const Picture& picture_;
  TextWrap caption_;
  std::vector<const Picture*> all_;
};

Layout CaptionOf(const Control& control) { return Layout(std::make_shared<CaptionPart>(control)); }

}  // namespace

namespace layout {

Layout Group(const GroupBox& box, Layout content) {
  return Layout(std::make_shared<GroupPart>(box, std::move(content)));
}

Layout Above(const Control& captioned, Layout content) {
  return Column({CaptionOf(captioned), std::move(content)}, kCaptionGap);
}

Layout Gallery(const std::vector<const Picture*>& pictures) {
  Parts parts;
  for (const Picture* picture : pictures) {
    parts.push_back(Layout(std::make_shared<ExhibitPart>(*picture, pictures)));
  }
  return Row(std::move(parts), kUnrelated);
}

FormLine Line(const Edit& field) { return {CaptionOf(field), field}; }

FormLine Line(const ComboBox& field) { return {CaptionOf(field), field}; }

FormLine Line(const Control& captioned, Layout content) {
  return {CaptionOf(captioned), std::move(content)};
}

FormLine Line(const Label& label, Layout content) { return {label, std::move(content)}; }

FormLine Indented(Layout content) { return {Layout(), std::move(content)}; }

Layout Form(FormLines lines) { return Layout(std::make_shared<FormPart>(std::move(lines))); }

FormLines Joined(const std::vector<FormLines>& groups) {
  FormLines all;
  for (const FormLines& lines : groups) all.insert(all.end(), lines.begin(), lines.end());
  return all;
}

}  // namespace layout
}  // namespace qutav
