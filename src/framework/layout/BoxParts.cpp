// Parts below and beside each other.
#include <algorithm>
#include <memory>
#include <utility>

#include "framework/layout/LayoutPart.h"
#include "framework/layout/Parts.h"
#include "framework/layout/Sharing.h"

namespace qutav {
namespace {

using layout::Parts;

bool AnyGrowsWide(const Parts& parts) {
  return std::any_of(parts.begin(), parts.end(),
                     [](const Layout& part) { return part.Part().GrowsWide(); });
}

bool AnyGrowsTall(const Parts& parts) {
  return std::any_of(parts.begin(), parts.end(),
                     [](const Layout& part) { return part.Part().GrowsTall(); });
}

int Widest(const LayoutMeasure& measure, const Parts& parts) {
  int widest = 0;
  for (const Layout& part : parts) widest = std::max(widest, part.Part().Width(measure));
  return widest;
}

int Gaps(const Parts& parts, int gap) {
  return parts.empty() ? 0 : gap * (static_cast<int>(parts.size()) - 1);
}

class ColumnPart final : public LayoutPart {
 public:
  ColumnPart(Parts parts, int gap) : parts_(std::move(parts)), gap_(gap) {}

  int Width(const LayoutMeasure& measure) const override { return Widest(measure, parts_); }
  int Height(const LayoutMeasure& measure, int width) const override {
    int height = Gaps(parts_, measure.Vertical(gap_));
    for (const Layout& part : parts_) height += part.Part().Height(measure, width);
    return height;
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    return parts_.front().Part().LineHeight(measure);
  }
  bool GrowsWide() const override { return AnyGrowsWide(parts_); }
  bool GrowsTall() const override { return AnyGrowsTall(parts_); }

  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int gap = measure.Vertical(gap_);
    const std::vector<int> heights = Heights(measure, area, gap);
    int top = area.top;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
      const int bottom = top + heights[i];
      parts_[i].Part().Place(measure, {area.left, top, area.right, bottom}, placement);
      top = bottom + gap;
    }
  }

 private:
  std::vector<int> Heights(const LayoutMeasure& measure, const Rectangle& area, int gap) const {
    std::vector<Share> shares;
    for (const Layout& part : parts_) {
      shares.push_back({part.Part().Height(measure, area.Width()), part.Part().GrowsTall()});
    }
    return ShareOut(shares, area.Height() - Gaps(parts_, gap));
  }

  Parts parts_;
  int gap_;
};

// What the parts of a row have in common; how they share its width is told below.
class RowPart : public LayoutPart {
 public:
  RowPart(Parts parts, int gap) : parts_(std::move(parts)), gap_(gap) {}

  int Height(const LayoutMeasure& measure, int width) const override {
    const int line = LineHeight(measure);
    const std::vector<int> widths = Widths(measure, width);
    int height = 0;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
      const LayoutPart& part = parts_[i].Part();
      height = std::max(height, Drop(measure, part, line) + part.Height(measure, widths[i]));
    }
    return height;
  }
  int LineHeight(const LayoutMeasure& measure) const override {
    int height = 0;
    for (const Layout& part : parts_) height = std::max(height, part.Part().LineHeight(measure));
    return height;
  }
  bool GrowsTall() const override { return AnyGrowsTall(parts_); }

  void Place(const LayoutMeasure& measure, const Rectangle& area,
             Placement& placement) const override {
    const int line = LineHeight(measure);
    const std::vector<int> widths = Widths(measure, area.Width());
    int left = area.left;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
      const LayoutPart& part = parts_[i].Part();
      const int right = left + widths[i];
      const int top = area.top + Drop(measure, part, line);
      part.Place(measure, {left, top, right, area.bottom}, placement);
      left = right + measure.Horizontal(gap_);
    }
  }

 protected:
  virtual std::vector<int> Widths(const LayoutMeasure& measure, int width) const = 0;
  int AllGaps(const LayoutMeasure& measure) const { return Gaps(parts_, measure.Horizontal(gap_)); }
  const Parts& Cells() const { return parts_; }

 private:
  // How far below the row's top a part begins.
  static int Drop(const LayoutMeasure& measure, const LayoutPart& part, int line) {
    return (line - part.LineHeight(measure)) / 2;
  }

  Parts parts_;
  int gap_;
};

// Each part as wide as it is.
class FittedRow final : public RowPart {
 public:
  using RowPart::RowPart;

  int Width(const LayoutMeasure& measure) const override {
    int width = AllGaps(measure);
    for (const Layout& part : Cells()) width += part.Part().Width(measure);
    return width;
  }
  bool GrowsWide() const override { return AnyGrowsWide(Cells()); }

 private:
  std::vector<int> Widths(const LayoutMeasure& measure, int width) const override {
    std::vector<Share> shares;
    for (const Layout& part : Cells()) {
      shares.push_back({part.Part().Width(measure), part.Part().GrowsWide()});
    }
    return ShareOut(shares, width - AllGaps(measure));
  }
};

// All parts equally wide.
class EvenRow final : public RowPart {
 public:
  EvenRow(Parts parts, int gap, bool grows) : RowPart(std::move(parts), gap), grows_(grows) {}

  int Width(const LayoutMeasure& measure) const override {
    return Widest(measure, Cells()) * static_cast<int>(Cells().size()) + AllGaps(measure);
  }
  bool GrowsWide() const override { return grows_; }

 private:
  std::vector<int> Widths(const LayoutMeasure& measure, int width) const override {
    return ShareOut(std::vector<Share>(Cells().size(), {Widest(measure, Cells()), grows_}),
                    width - AllGaps(measure));
  }

  bool grows_;
};

class SpacePart final : public LayoutPart {
 public:
  explicit SpacePart(bool grows) : grows_(grows) {}

  int Width(const LayoutMeasure&) const override { return 0; }
  int Height(const LayoutMeasure&, int) const override { return 0; }
  int LineHeight(const LayoutMeasure&) const override { return 0; }
  bool GrowsWide() const override { return grows_; }
  void Place(const LayoutMeasure&, const Rectangle&, Placement&) const override {}

 private:
  bool grows_;
};

}  // namespace

Layout::Layout() : Layout(std::make_shared<SpacePart>(false)) {}

namespace layout {

Layout Column(Parts parts, int gap) {
  return Layout(std::make_shared<ColumnPart>(std::move(parts), gap));
}

Layout Row(Parts parts, int gap) {
  return Layout(std::make_shared<FittedRow>(std::move(parts), gap));
}

Layout Columns(Parts parts, int gap) {
  return Layout(std::make_shared<EvenRow>(std::move(parts), gap, true));
}

Layout SameWidth(Parts parts) {
  return Layout(std::make_shared<EvenRow>(std::move(parts), kRelated, false));
}

Layout Buttons(Parts parts) { return Row({Space(), SameWidth(std::move(parts))}); }

Layout Space() { return Layout(std::make_shared<SpacePart>(true)); }

}  // namespace layout
}  // namespace qutav
