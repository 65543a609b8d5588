#include "framework/Layout.h"

#include <algorithm>

#include "framework/layout/LayoutPart.h"

namespace qutav {
namespace {

constexpr int kMargin = 7;

}  // namespace

Size Layout::NaturalSize(const LayoutMeasure& measure) const {
  const int width = part_->Width(measure);
  return {width + 2 * measure.Horizontal(kMargin),
          part_->Height(measure, width) + 2 * measure.Vertical(kMargin)};
}

std::vector<PlacedControl> Layout::Arrange(const LayoutMeasure& measure, Size size) const {
  const Size natural = NaturalSize(measure);
  const int horizontal = measure.Horizontal(kMargin);
  const int vertical = measure.Vertical(kMargin);
  Placement placement;
  part_->Place(measure,
               {horizontal, vertical, std::max(size.width, natural.width) - horizontal,
                std::max(size.height, natural.height) - vertical},
               placement);
  return placement.Take();
}

PlacedControl& Placement::Of(const Control& control) {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& placed) { return placed.control == &control; });
  if (found != controls_.end()) return *found;
  return controls_.emplace_back(PlacedControl{&control, {}, {}});
}

}  // namespace qutav
