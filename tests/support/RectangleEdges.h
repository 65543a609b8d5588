#pragma once

#include <vector>

#include "platform/FrontEnd.h"

namespace qutav::test {

/// Left, top, right and bottom, to be compared at once.
inline std::vector<int> EdgesOf(const Rectangle& rectangle) {
  return {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
}

}  // namespace qutav::test
