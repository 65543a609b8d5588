#pragma once

#include <string>
#include <vector>

namespace qutav {

/// The numbers of a level such as "TAV3.7": 3 and 7. Empty pieces are skipped; what is no number
/// counts as 0.
std::vector<int> ParseRuntimeVersion(const std::u16string& text);

/// Compares a level with the current one, that of the settings: 1 when the given level is the
/// higher, 0 when they are equal, -1 when it is the lower. So below 1 means: the current level is
/// at or above.
int CompareRuntimeVersion(const std::u16string& level);

/// Whether the current level is at or above the given one.
inline bool RuntimeIsAtLeast(const std::u16string& level) {
  return CompareRuntimeVersion(level) < 1;
}

}  // namespace qutav
