// The mnemonics of a dialog's captions.
#pragma once

#include <map>
#include <string>

#include "framework/CDialog.h"
#include "framework/Layout.h"
#include "framework/windows/DialogFont.h"

namespace qutav {

class CaptionMarks {
 public:
  /// For the captions as they are now.
  explicit CaptionMarks(const CDialog& dialog);

  /// A control's caption, or its own text, with "&" before the mnemonic; empty for a control that
  /// has none.
  const std::u16string& Of(const Control& control) const;
  /// What is drawn for a text: the same, but where the mnemonic stands behind it.
  std::u16string Drawn(const std::u16string& text) const;

 private:
  std::map<unsigned, std::u16string> bySerial_;
  std::map<std::u16string, std::u16string> byText_;
};

/// Measures captions as they are drawn with their marks. The marks and the font must outlive it.
class MarkedMeasure final : public LayoutMeasure {
 public:
  MarkedMeasure(HFONT font, unsigned dpi, const CaptionMarks& marks)
      : plain_(font, dpi), marks_(marks) {}

  int Horizontal(int dialogUnits) const override { return plain_.Horizontal(dialogUnits); }
  int Vertical(int dialogUnits) const override { return plain_.Vertical(dialogUnits); }
  int Scaled(int pixels) const override { return plain_.Scaled(pixels); }
  int TextWidth(const std::u16string& text) const override {
    return plain_.TextWidth(marks_.Drawn(text));
  }
  int TextHeight(const std::u16string& text, int width) const override {
    return plain_.TextHeight(marks_.Drawn(text), width);
  }

 private:
  FontMeasure plain_;
  const CaptionMarks& marks_;
};

}  // namespace qutav
