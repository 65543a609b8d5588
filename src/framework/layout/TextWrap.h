// How a text of a control takes room.
#pragma once

#include <string>

#include "framework/Layout.h"

namespace qutav {

/// A text that is read whenever it is asked, on one line or wrapped.
class TextWrap {
 public:
  static constexpr int kOneLine = 0;
  static constexpr int kLineHeight = 8;  ///< in dialog units
  /// `width` is the one at which it wraps if it is longer, in dialog units.
  explicit TextWrap(const std::u16string& text, int width = kOneLine)
      : text_(&text), width_(width) {}

  int Width(const LayoutMeasure& measure) const;
  int OneLineWidth(const LayoutMeasure& measure) const { return measure.TextWidth(*text_); }
  int Height(const LayoutMeasure& measure, int width) const;

 private:
  const std::u16string* text_;
  int width_;
};

}  // namespace qutav
