// How parts share a length.
#pragma once

#include <vector>

namespace qutav {

struct Share {
  int natural = 0;
  bool grows = false;
};

/// The length of each: its natural one, and for those that grow an equal share of what is left.
std::vector<int> ShareOut(const std::vector<Share>& shares, int length);

}  // namespace qutav
