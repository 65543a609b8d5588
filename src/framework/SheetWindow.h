// What a property sheet asks of the window that shows it. All figures are pixels.
#pragma once

#include "platform/FrontEnd.h"

namespace qutav {

/// Of a vertical scroll bar (`SCROLLINFO`).
struct ScrollInfo {
  int minimum = 0;
  int maximum = 0;
  int page = 0;
  int position = 0;
};

class SheetWindow {
 public:
  virtual ~SheetWindow() = default;
  /// The screen without the taskbar (`SPI_GETWORKAREA`).
  virtual Rectangle WorkArea() = 0;
  /// On the screen (`GetWindowRect`).
  virtual Rectangle WindowRectangle() = 0;
  /// `SM_CXVSCROLL`.
  virtual int ScrollBarWidth() = 0;
  /// Where a button of the sheet stands, in client coordinates.
  virtual Rectangle ButtonRectangle(int commandId) = 0;
  /// Neither moves the sheet nor changes the z-order (`SetWindowPos`).
  virtual void Resize(int width, int height) = 0;
  /// `ShowScrollBar` and `SetScrollInfo`.
  virtual void ShowScrollBar(const ScrollInfo& info) = 0;
  virtual void SetScrollPosition(int position, bool redraw) = 0;
  /// Moves the sheet's content, down for a positive distance (`ScrollWindow`).
  virtual void ScrollContents(int distance) = 0;
  /// Brings a page to the front; it has been created.
  virtual void ShowPage(int index) = 0;
};

}  // namespace qutav
