#pragma once

#include "platform/windows/System.h"

namespace qutav::test {

/// A visible window with the focus, as a host's is, for as long as this lives.
class OwnerWindow {
 public:
  OwnerWindow()
      : window_(CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40,
                                300, 200, nullptr, nullptr, nullptr, nullptr)) {
    SetFocus(window_);
  }
  ~OwnerWindow() { DestroyWindow(window_); }
  OwnerWindow(const OwnerWindow&) = delete;
  OwnerWindow& operator=(const OwnerWindow&) = delete;

  HWND Window() const { return window_; }

 private:
  HWND window_;
};

}  // namespace qutav::test
