#include "platform/Unicode.h"

#include <array>
#include <cstddef>

namespace qutav {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct DecodedPoint {
  char32_t point;
  std::size_t length;
};

bool IsSurrogate(char32_t point) { return point >= 0xD800 && point <= 0xDFFF; }

bool IsHighSurrogate(char32_t point) { return point >= 0xD800 && point <= 0xDBFF; }

bool IsLowSurrogate(char32_t point) { return point >= 0xDC00 && point <= 0xDFFF; }

std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

bool IsInRange(char32_t point, std::size_t length) {
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  return point >= kSmallest[length] && point <= 0x10FFFF;
}

DecodedPoint DecodePoint(std::string_view bytes) {
  constexpr std::array<unsigned, 5> kLeadBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
  const auto lead = static_cast<unsigned char>(bytes.front());
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || length > bytes.size()) return {kReplacement, 1};
  char32_t point = lead & kLeadBits[length];
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if ((byte & 0xC0) != 0x80) return {kReplacement, 1};
    point = (point << 6) | (byte & 0x3FU);
  }
  if (!IsInRange(point, length)) return {kReplacement, 1};
  return {point, length};
}

void AppendUtf8(std::string& out, char32_t point) {
  const auto tail = [&](unsigned shift) {
    out += static_cast<char>(0x80 | ((point >> shift) & 0x3F));
  };
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
  const char32_t offset = point - 0x10000;
  out += static_cast<char16_t>(0xD800 + (offset >> 10));
  out += static_cast<char16_t>(0xDC00 + (offset & 0x3FF));
}

std::u16string Decode(std::string_view bytes, bool keepSurrogates) {
  std::u16string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    DecodedPoint decoded = DecodePoint(bytes);
    if (IsSurrogate(decoded.point) && !keepSurrogates) decoded = {kReplacement, 1};
    AppendUtf16(text, decoded.point);
    bytes.remove_prefix(decoded.length);
  }
  return text;
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t point = text[i];
    const bool paired =
        IsHighSurrogate(point) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    if (paired) {
      ++i;
      point = 0x10000 + ((point - 0xD800) << 10) + (static_cast<char32_t>(text[i]) - 0xDC00);
    }
    AppendUtf8(bytes, IsSurrogate(point) ? kReplacement : point);
  }
  return bytes;
}

std::u16string FromUtf8(std::string_view bytes) { return Decode(bytes, false); }

std::string ToCesu8(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char16_t unit : text) AppendUtf8(bytes, unit);
  return bytes;
}

std::u16string FromCesu8(std::string_view bytes) { return Decode(bytes, true); }

}  // namespace qutav
