#include "platform/Text.h"

#include <algorithm>
#include <limits>

namespace qutav {
namespace {

bool IsXmlSpace(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

}  // namespace

std::u16string ToDecimal(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

int ParseDecimal(std::u16string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (IsXmlSpace(text[i]) || text[i] == u'\v' || text[i] == u'\f')) ++i;
  const bool negative = i < text.size() && text[i] == u'-';
  if (negative || (i < text.size() && text[i] == u'+')) ++i;
  constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<int>::max()} + 1;
  std::int64_t value = 0;
  for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i) {
    value = std::min(value * 10 + (text[i] - u'0'), kLimit);
  }
  value = negative ? -value : std::min(value, kLimit - 1);
  return static_cast<int>(value);
}

std::u16string ToLowerAscii(std::u16string_view text) {
  std::u16string lower(text);
  for (char16_t& unit : lower) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + (u'a' - u'A'));
  }
  return lower;
}

bool EqualsIgnoringCase(std::u16string_view a, std::u16string_view b) {
  return ToLowerAscii(a) == ToLowerAscii(b);
}

std::u16string ReplaceAll(std::u16string text, std::u16string_view from, std::u16string_view to) {
  if (from.empty()) return text;
  for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::u16string Trimmed(std::u16string_view text) {
  while (!text.empty() && IsXmlSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsXmlSpace(text.back())) text.remove_suffix(1);
  return std::u16string(text);
}

}  // namespace qutav
