#include "platform/Text.h"

#include <algorithm>
#include <limits>

namespace qutav {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void AppendUtf8(std::string& out, char32_t point) {
  auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
  if (point < 0x80) {
    out += static_cast<char>(point);
  } else if (point < 0x800) {
    out += static_cast<char>(0xC0 | (point >> 6));
    tail(0);
  } else if (point < 0x10000) {
    out += static_cast<char>(0xE0 | (point >> 12));
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0 | (point >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

void AppendUtf16(std::u16string& out, char32_t point) {
  if (point < 0x10000) {
    out += static_cast<char16_t>(point);
    return;
  }
  point -= 0x10000;
  out += static_cast<char16_t>(0xD800 + (point >> 10));
  out += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
}

struct LeadByte {
  std::size_t length;
  char32_t bits;
  char32_t smallest;  // an encoding longer than its code point needs is not well formed
};

LeadByte Classify(unsigned char byte) {
  if (byte < 0x80) return {1, byte, 0};
  if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1Fu, 0x80};
  if (byte >= 0xE0 && byte <= 0xEF) return {3, byte & 0x0Fu, 0x800};
  if (byte >= 0xF0 && byte <= 0xF4) return {4, byte & 0x07u, 0x10000};
  return {0, 0, 0};
}

// Reads one code point at `at` and moves behind it; a malformed sequence costs one byte.
char32_t NextFromUtf8(std::string_view bytes, std::size_t& at) {
  const LeadByte lead = Classify(static_cast<unsigned char>(bytes[at]));
  const std::size_t start = at++;
  if (lead.length == 0 || bytes.size() - start < lead.length) return kReplacement;
  char32_t point = lead.bits;
  for (std::size_t i = 1; i < lead.length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[start + i]);
    if ((byte & 0xC0) != 0x80) return kReplacement;
    point = (point << 6) | (byte & 0x3Fu);
  }
  const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
  if (point < lead.smallest || point > 0x10FFFF || surrogate) return kReplacement;
  at = start + lead.length;
  return point;
}

bool IsXmlSpace(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t point = text[i];
    if (IsHighSurrogate(point) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      point = 0x10000 + ((point - 0xD800) << 10) + (text[++i] - 0xDC00u);
    } else if (IsHighSurrogate(point) || IsLowSurrogate(point)) {
      point = kReplacement;
    }
    AppendUtf8(out, point);
  }
  return out;
}

std::u16string FromUtf8(std::string_view bytes) {
  std::u16string out;
  out.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) AppendUtf16(out, NextFromUtf8(bytes, at));
  return out;
}

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
