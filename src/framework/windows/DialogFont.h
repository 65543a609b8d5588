// The font of dialogs, and what a layout asks of it.
#pragma once

#include <string>

#include "framework/Layout.h"
#include "platform/windows/System.h"

namespace qutav {

/// The system's dialog font for a resolution, or another face of the same size.
class DialogFont {
 public:
  explicit DialogFont(unsigned dpi, const std::u16string& face = {});
  ~DialogFont();
  DialogFont(const DialogFont&) = delete;
  DialogFont& operator=(const DialogFont&) = delete;

  HFONT Handle() const { return font_; }

 private:
  HFONT font_;
};

/// Measures text as it will be drawn in a font, on the screen. The font must outlive it.
class FontMeasure final : public LayoutMeasure {
 public:
  FontMeasure(HFONT font, unsigned dpi);
  ~FontMeasure() override;
  FontMeasure(const FontMeasure&) = delete;
  FontMeasure& operator=(const FontMeasure&) = delete;

  int Horizontal(int dialogUnits) const override;
  int Vertical(int dialogUnits) const override;
  int TextWidth(const std::u16string& text) const override;
  int TextHeight(const std::u16string& text, int width) const override;
  int Scaled(int pixels) const override;

  /// Pixels to dialog units, rounded up.
  int HorizontalUnits(int pixels) const;
  int VerticalUnits(int pixels) const;
  /// `tmAveCharWidth`.
  int AverageCharacterWidth() const { return metrics_.tmAveCharWidth; }

 private:
  unsigned dpi_;
  HDC screen_;
  HGDIOBJ former_;
  TEXTMETRICW metrics_{};
  int baseWidth_;
};

}  // namespace qutav
