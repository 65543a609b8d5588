#include "support/RuntimeVersion.h"

#include <algorithm>

#include "platform/Text.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

int ParseNumber(std::u16string piece) {
  if (piece.starts_with(u"TAV")) {
    piece.erase(0, std::min(piece.find_first_not_of(u"TAV"), piece.size()));
  }
  return ParseDecimal(piece);
}

}  // namespace

std::vector<int> ParseRuntimeVersion(const std::u16string& text) {
  std::vector<int> numbers;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t dot = std::min(text.find(u'.', start), text.size());
    if (dot > start) numbers.push_back(ParseNumber(text.substr(start, dot - start)));
    start = dot + 1;
  }
  return numbers;
}

int CompareRuntimeVersion(const std::u16string& level) {
  std::vector<int> given = ParseRuntimeVersion(level);
  std::vector<int> current = ParseRuntimeVersion(SettingsGet(keys::kRuntimeKit));
  const std::size_t length = std::max(given.size(), current.size());
  given.resize(length);
  current.resize(length);
  if (given == current) return 0;
  return given > current ? 1 : -1;
}

}  // namespace qutav
