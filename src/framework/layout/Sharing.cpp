#include "framework/layout/Sharing.h"

#include <algorithm>

namespace qutav {

std::vector<int> ShareOut(const std::vector<Share>& shares, int length) {
  int left = length;
  for (const Share& share : shares) left -= share.natural;
  auto growing = static_cast<int>(
      std::count_if(shares.begin(), shares.end(), [](const Share& share) { return share.grows; }));
  std::vector<int> lengths;
  for (const Share& share : shares) {
    const int more = share.grows ? left / growing-- : 0;
    lengths.push_back(share.natural + more);
    left -= more;
  }
  return lengths;
}

}  // namespace qutav
