#include "framework/windows/DialogFont.h"

#include "platform/windows/Wide.h"

namespace qutav {
namespace {

constexpr int kPoints = 8;
constexpr int kPointsPerInch = 72;

// Of which the average width is taken, as the system's own dialogs take it.
constexpr wchar_t kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kLetterCount = 52;

LOGFONTW Description(unsigned dpi, const std::u16string& face) {
  LOGFONTW description{};
  GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof description, &description);
  description.lfHeight = -MulDiv(kPoints, static_cast<int>(dpi), kPointsPerInch);
  description.lfWidth = 0;
  if (!face.empty()) lstrcpynW(description.lfFaceName, Wide(face), LF_FACESIZE);
  return description;
}

int WidthOf(HDC context, const wchar_t* text, int length) {
  SIZE size{};
  GetTextExtentPoint32W(context, text, length, &size);
  return size.cx;
}

int DivideUp(int dividend, int divisor) { return (dividend + divisor - 1) / divisor; }

}  // namespace

DialogFont::DialogFont(unsigned dpi, const std::u16string& face) {
  const LOGFONTW description = Description(dpi, face);
  font_ = CreateFontIndirectW(&description);
}

DialogFont::~DialogFont() { DeleteObject(font_); }

FontMeasure::FontMeasure(HFONT font, unsigned dpi)
    : dpi_(dpi), screen_(GetDC(nullptr)), former_(SelectObject(screen_, font)) {
  GetTextMetricsW(screen_, &metrics_);
  baseWidth_ = (WidthOf(screen_, kLetters, kLetterCount) / (kLetterCount / 2) + 1) / 2;
}

FontMeasure::~FontMeasure() {
  SelectObject(screen_, former_);
  ReleaseDC(nullptr, screen_);
}

int FontMeasure::Horizontal(int dialogUnits) const { return MulDiv(dialogUnits, baseWidth_, 4); }

int FontMeasure::Vertical(int dialogUnits) const {
  return MulDiv(dialogUnits, metrics_.tmHeight, 8);
}

int FontMeasure::HorizontalUnits(int pixels) const { return DivideUp(pixels * 4, baseWidth_); }

int FontMeasure::VerticalUnits(int pixels) const {
  return DivideUp(pixels * 8, static_cast<int>(metrics_.tmHeight));
}

int FontMeasure::TextWidth(const std::u16string& text) const {
  return WidthOf(screen_, Wide(text), static_cast<int>(text.size()));
}

int FontMeasure::TextHeight(const std::u16string& text, int width) const {
  RECT place{0, 0, width, 0};
  DrawTextW(screen_, Wide(text), static_cast<int>(text.size()), &place,
            DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  return place.bottom;
}

int FontMeasure::Scaled(int pixels) const { return MulDiv(pixels, static_cast<int>(dpi_), 96); }

}  // namespace qutav
