#pragma once

#include "platform/windows/System.h"

namespace qutav::test {

/// A lower screen, for as long as this lives.
class SmallWorkArea {
 public:
  explicit SmallWorkArea(int bottom) {
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &before_, 0);
    RECT area{0, 0, 1024, bottom};
    SystemParametersInfoW(SPI_SETWORKAREA, 0, &area, 0);
  }
  ~SmallWorkArea() { SystemParametersInfoW(SPI_SETWORKAREA, 0, &before_, 0); }
  SmallWorkArea(const SmallWorkArea&) = delete;
  SmallWorkArea& operator=(const SmallWorkArea&) = delete;

 private:
  RECT before_{};
};

}  // namespace qutav::test
