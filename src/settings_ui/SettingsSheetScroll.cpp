#include "settings_ui/SettingsSheetScroll.h"

#include <algorithm>

namespace qutav {
namespace {

constexpr int kLine = 25;
constexpr int kPage = 100;
constexpr int kGapBelow = 10;

}  // namespace

// Where the sheet stands on the screen plays no part.
void CSettingsPropSheetScroll::SetupScrolling(SheetWindow& window) {
  const Rectangle sheet = window.WindowRectangle();
  const int bottom = window.WorkArea().bottom;
  if (sheet.Height() <= bottom) return;
  const int height = bottom - kGapBelow;
  window.Resize(sheet.Width() + window.ScrollBarWidth(), height);
  scrollPos = 0;
  scrollMax = sheet.Height() - height;
  window.ShowScrollBar({0, sheet.Height(), height, 0});
}

void CSettingsPropSheetScroll::ScrollByBar(SheetWindow& window, ScrollCode code, int thumbPos) {
  ScrollTo(window, scrollPos + DeltaOf(code, thumbPos), false);
}

void CSettingsPropSheetScroll::ScrollByWheel(SheetWindow& window, int zDelta) {
  ScrollTo(window, scrollPos - zDelta, true);
}

// Dragging scrolls while it goes on, so letting go changes nothing.
int CSettingsPropSheetScroll::DeltaOf(ScrollCode code, int thumbPos) const {
  switch (code) {
    case ScrollCode::kLineUp:
      return -kLine;
    case ScrollCode::kLineDown:
      return kLine;
    case ScrollCode::kPageUp:
      return -kPage;
    case ScrollCode::kPageDown:
      return kPage;
    case ScrollCode::kThumbTrack:
      return thumbPos - scrollPos;
    case ScrollCode::kTop:
      return -scrollPos;
    case ScrollCode::kBottom:
      return scrollMax - scrollPos;
    case ScrollCode::kThumbPosition:
    case ScrollCode::kEndScroll:
      break;
  }
  return 0;
}

void CSettingsPropSheetScroll::ScrollTo(SheetWindow& window, int position, bool redraw) {
  const int old = scrollPos;
  scrollPos = std::min(std::max(position, 0), scrollMax);
  window.SetScrollPosition(scrollPos, redraw);
  window.ScrollContents(old - scrollPos);
}

}  // namespace qutav
