#include "framework/layout/TextWrap.h"

#include <algorithm>

namespace qutav {
namespace {

// Kana, ideographs and the like: a line may break behind each of them.
bool MayBreakBehind(char16_t unit) { return unit >= 0x2E80 && unit < 0xD800; }

std::u16string::size_type EndOfWord(const std::u16string& text, std::u16string::size_type begin) {
  auto end = begin;
  while (end < text.size() && text[end] != u' ' && !MayBreakBehind(text[end])) ++end;
  const bool breaksBehind = end < text.size() && text[end] != u' ';
  return breaksBehind ? end + 1 : end;
}

int WidestWord(const LayoutMeasure& measure, const std::u16string& text) {
  int widest = 0;
  for (std::u16string::size_type begin = 0; begin < text.size();) {
    const auto end = EndOfWord(text, begin);
    widest = std::max(widest, measure.TextWidth(text.substr(begin, end - begin)));
    begin = std::max(end, begin + 1);
  }
  return widest;
}

}  // namespace

int TextWrap::Width(const LayoutMeasure& measure) const {
  const int oneLine = OneLineWidth(measure);
  if (width_ == kOneLine) return oneLine;
  return std::min(oneLine, std::max(measure.Horizontal(width_), WidestWord(measure, *text_)));
}

int TextWrap::Height(const LayoutMeasure& measure, int width) const {
  return std::max(measure.Vertical(kLineHeight), measure.TextHeight(*text_, width));
}

}  // namespace qutav
