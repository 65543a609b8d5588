#include "host/RuntimeLevel.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace qutav::host {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsDottedNumbers(std::string_view level) {
  char before = '.';
  for (const char c : level) {
    if (!IsDigit(c) && (c != '.' || before == '.')) return false;
    before = c;
  }
  return before != '.';
}

}  // namespace

std::optional<std::uint8_t> MajorOfRuntimeLevel(std::string_view level) {
  if (!IsDottedNumbers(level)) return std::nullopt;
  const std::size_t end = std::min(level.find('.'), level.size());
  std::uint8_t major = 0;
  const auto result = std::from_chars(level.data(), level.data() + end, major);
  if (result.ec != std::errc()) return std::nullopt;
  return major;
}

}  // namespace qutav::host
