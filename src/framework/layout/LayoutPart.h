// What every part of a layout can be asked. Sizes are pixels.
#pragma once

#include <vector>

#include "framework/Layout.h"

namespace qutav {

/// Collects what is placed; a control and its caption may come in any order.
class Placement {
 public:
  void Put(const Control& control, const Rectangle& place) { Of(control).place = place; }
  void PutCaption(const Control& control, const Rectangle& caption) {
    Of(control).caption = caption;
  }
  std::vector<PlacedControl> Take() { return std::move(controls_); }

 private:
  PlacedControl& Of(const Control& control);

  std::vector<PlacedControl> controls_;
};

class LayoutPart {
 public:
  virtual ~LayoutPart() = default;

  /// The least in which nothing is cut.
  virtual int Width(const LayoutMeasure& measure) const = 0;
  virtual int Height(const LayoutMeasure& measure, int width) const = 0;
  /// The height of its first line: what stands side by side has the middle of that in common.
  virtual int LineHeight(const LayoutMeasure& measure) const = 0;
  /// Whether it takes room that nobody needs.
  virtual bool GrowsWide() const { return false; }
  virtual bool GrowsTall() const { return false; }
  /// In an area that is no smaller than it asked for.
  virtual void Place(const LayoutMeasure& measure, const Rectangle& area,
                     Placement& placement) const = 0;
};

}  // namespace qutav
