#include "framework/windows/ButtonRow.h"

#include <algorithm>

#include "framework/windows/DialogFont.h"
#include "framework/windows/WindowText.h"

namespace qutav {
namespace {

constexpr int kPadding = 6;  // in dialog units, on either side of a button's text

RECT InWindow(HWND window, HWND child) {
  RECT rect{};
  GetWindowRect(child, &rect);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

struct RowButton {
  HWND window;
  RECT place;
  int width;  ///< that it needs
};

RowButton Measured(HWND window, HWND button) {
  const FontMeasure measure(reinterpret_cast<HFONT>(SendMessageW(button, WM_GETFONT, 0, 0)),
                            GetDpiForWindow(window));
  const RECT place = InWindow(window, button);
  const int needed = measure.TextWidth(WindowText(button)) + 2 * measure.Horizontal(kPadding);
  return {button, place, std::max(needed, static_cast<int>(place.right - place.left))};
}

bool Fits(const RowButton& button) {
  return button.width <= button.place.right - button.place.left;
}

}  // namespace

void FitButtons(HWND window, std::vector<HWND> buttons) {
  std::vector<RowButton> row;
  for (HWND button : buttons) row.push_back(Measured(window, button));
  std::sort(row.begin(), row.end(),
            [](const auto& a, const auto& b) { return a.place.left < b.place.left; });
  if (std::all_of(row.begin(), row.end(), Fits)) return;
  const LONG gap = row[1].place.left - row[0].place.right;
  LONG right = row.back().place.right;
  for (auto button = row.rbegin(); button != row.rend(); ++button) {
    button->place = {right - button->width, button->place.top, right, button->place.bottom};
    right = button->place.left - gap;
  }
  for (const RowButton& button : row) {
    SetWindowPos(button.window, nullptr, button.place.left, button.place.top, button.width,
                 button.place.bottom - button.place.top, SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

}  // namespace qutav
