#pragma once

#include "framework/CPropertySheet.h"

namespace qutav {

/// Scrolls a sheet that is taller than the screen, by its bar and by the wheel.
class CSettingsPropSheetScroll {
 public:
  int scrollPos = 0;  ///< in pixels, 0 at the top
  int scrollMax = 0;  ///< the greatest position; 0 while the sheet fits the screen

  /// Cuts a sheet that is taller than the work area's bottom down to it and gives it a scroll bar.
  void SetupScrolling(SheetWindow& window);
  void ScrollByBar(SheetWindow& window, ScrollCode code, int thumbPos);
  /// `zDelta` counts 120 for one notch, away from the user; each is a pixel.
  void ScrollByWheel(SheetWindow& window, int zDelta);

 private:
  int DeltaOf(ScrollCode code, int thumbPos) const;
  void ScrollTo(SheetWindow& window, int position, bool redraw);
};

}  // namespace qutav
