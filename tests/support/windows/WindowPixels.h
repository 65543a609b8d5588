// What a window shows on the screen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/windows/System.h"

namespace qutav::test {

/// The client area of a window, as it stands after all that is due has been painted.
class WindowPixels {
 public:
  explicit WindowPixels(HWND window);

  /// As 0xRRGGBB.
  std::uint32_t At(int x, int y) const {
    return pixels_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                      static_cast<std::size_t>(x));
  }
  int Width() const { return width_; }
  int Height() const { return height_; }
  bool operator==(const WindowPixels&) const = default;

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace qutav::test
