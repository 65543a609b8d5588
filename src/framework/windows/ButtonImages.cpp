#include "framework/windows/ButtonImages.h"

#include <algorithm>
#include <cmath>
#include <vector>

// behind the system's own header
#include <objidl.h>
// behind objidl.h
#include <gdiplus.h>

namespace qutav {
namespace {

using Gdiplus::Color;
using Gdiplus::PointF;
using Gdiplus::REAL;

/// What a shape is drawn with.
enum class Paint { kInk, kAccent, kTint };

/// A polygon that is filled, a closed line or an open one.
enum class Form { kFilled, kClosed, kOpen };

/// Points stand on a square of 16 by 16 units, y downwards.
struct Shape {
  Paint paint;
  Form form;
  std::vector<PointF> points;
};
using Shapes = std::vector<Shape>;

constexpr REAL kGridUnits = 16;
constexpr REAL kStrokeUnits = 0.85f;
constexpr REAL kBorderUnits = 0.7f;
constexpr REAL kCornerUnits = 2.2f;

const Shapes& Plus() {
  static const Shapes shapes = {
      {Paint::kAccent, Form::kOpen, {{8, 3}, {8, 13}}},
      {Paint::kAccent, Form::kOpen, {{3, 8}, {13, 8}}},
  };
  return shapes;
}

const Shapes& OpenFolder() {
  static const Shapes shapes = {
      {Paint::kTint, Form::kFilled, {{4.5f, 7.5f}, {14, 7.5f}, {11.5f, 12.5f}, {2, 12.5f}}},
      {Paint::kInk,
       Form::kOpen,
       {{2, 12.5f}, {2, 3.5f}, {5.5f, 3.5f}, {7, 5}, {11.5f, 5}, {11.5f, 7.5f}}},
      {Paint::kInk, Form::kClosed, {{4.5f, 7.5f}, {14, 7.5f}, {11.5f, 12.5f}, {2, 12.5f}}},
  };
  return shapes;
}

const Shapes& FolderWithPlus() {
  static const Shapes shapes = {
      {Paint::kInk,
       Form::kOpen,
       {{13.5f, 7.5f},
        {13.5f, 5},
        {7.5f, 5},
        {6, 3.5f},
        {2.5f, 3.5f},
        {2.5f, 12.5f},
        {7.5f, 12.5f}}},
      {Paint::kAccent, Form::kOpen, {{11.5f, 9}, {11.5f, 14}}},
      {Paint::kAccent, Form::kOpen, {{9, 11.5f}, {14, 11.5f}}},
  };
  return shapes;
}

const Shapes& PageWithPlus() {
  static const Shapes shapes = {
      {Paint::kInk,
       Form::kOpen,
       {{7.5f, 13.5f}, {3, 13.5f}, {3, 2.5f}, {8, 2.5f}, {11.5f, 6}, {11.5f, 7}}},
      {Paint::kInk, Form::kOpen, {{8, 2.5f}, {8, 6}, {11.5f, 6}}},
      {Paint::kAccent, Form::kOpen, {{11.5f, 9}, {11.5f, 14}}},
      {Paint::kAccent, Form::kOpen, {{9, 11.5f}, {14, 11.5f}}},
  };
  return shapes;
}

const Shapes& Pencil() {
  static const Shapes shapes = {
      {Paint::kAccent, Form::kOpen, {{9, 4.5f}, {11.5f, 7}}},
      {Paint::kInk, Form::kClosed, {{2.5f, 13.5f}, {3.5f, 10}, {10.5f, 3}, {13, 5.5f}, {6, 12.5f}}},
  };
  return shapes;
}

const Shapes& WasteBin() {
  static const Shapes shapes = {
      {Paint::kInk, Form::kOpen, {{2.5f, 4.5f}, {13.5f, 4.5f}}},
      {Paint::kInk, Form::kOpen, {{6, 4.5f}, {6, 2.5f}, {10, 2.5f}, {10, 4.5f}}},
      {Paint::kInk, Form::kOpen, {{4, 4.5f}, {4, 13.5f}, {12, 13.5f}, {12, 4.5f}}},
      {Paint::kAccent, Form::kOpen, {{6.5f, 7}, {6.5f, 11}}},
      {Paint::kAccent, Form::kOpen, {{9.5f, 7}, {9.5f, 11}}},
  };
  return shapes;
}

const Shapes& ShapesOf(ButtonImage image) {
  switch (image) {
    case ButtonImage::kBrowse:
      return OpenFolder();
    case ButtonImage::kAddFile:
      return PageWithPlus();
    case ButtonImage::kAddFolder:
      return FolderWithPlus();
    case ButtonImage::kAdd:
      return Plus();
    case ButtonImage::kEdit:
      return Pencil();
    case ButtonImage::kDelete:
      break;
  }
  return WasteBin();
}

struct Palette {
  Color ink;
  Color accent;
  Color tint;
  Color face;
  Color border;

  const Color& Of(Paint paint) const {
    if (paint == Paint::kTint) return tint;
    return paint == Paint::kAccent ? accent : ink;
  }
};

Palette PaletteOf(ButtonBitmap look) {
  constexpr Gdiplus::ARGB kInk = 0xFF454545;
  constexpr Gdiplus::ARGB kAccent = 0xFF0067C0;
  constexpr Gdiplus::ARGB kTint = 0xFFCFE4F7;
  switch (look) {
    case ButtonBitmap::kSelected:
      return {kInk, kAccent, 0xFFB4D5F2, 0xFFCCE4F7, 0xFF005A9E};
    case ButtonBitmap::kFocused:
      return {kInk, kAccent, kTint, 0xFFEAF4FC, kAccent};
    case ButtonBitmap::kDisabled:
      return {0xFFB4B4B4, 0xFFB4B4B4, 0xFFECECEC, 0xFFF6F6F6, 0xFFE4E4E4};
    case ButtonBitmap::kNone:
    case ButtonBitmap::kNormal:
      break;
  }
  return {kInk, kAccent, kTint, 0xFFFDFDFD, 0xFFD2D2D2};
}

/// The units of a shape as pixels. Lines lie on whole pixels, so that straight ones are sharp.
class PixelGrid {
 public:
  explicit PixelGrid(const RECT& place) {
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    const int shorter = std::min(width, height);
    const REAL exactStroke = kStrokeUnits * static_cast<REAL>(shorter) / kGridUnits;
    strokePixels_ = std::max(1, static_cast<int>(std::lround(exactStroke)));
    stroke_ = std::max(static_cast<REAL>(strokePixels_), exactStroke);
    // A line of one pixel stands in the middle of an odd number only.
    const int side = shorter - (shorter + strokePixels_) % 2;
    unit_ = static_cast<REAL>(side) / kGridUnits;
    left_ = place.left + (width - side) / 2;
    top_ = place.top + (height - side) / 2;
  }

  REAL Unit() const { return unit_; }
  REAL Stroke() const { return stroke_; }
  PointF At(const PointF& point) const {
    return {static_cast<REAL>(left_) + Snapped(point.X),
            static_cast<REAL>(top_) + Snapped(point.Y)};
  }

 private:
  // Whole numbers are the middles of pixels.
  REAL Snapped(REAL units) const {
    const REAL pixels = units * unit_;
    return strokePixels_ % 2 == 0 ? std::round(pixels) - 0.5f : std::floor(pixels);
  }

  int strokePixels_ = 1;
  REAL stroke_ = 1;
  REAL unit_ = 1;
  int left_ = 0;
  int top_ = 0;
};

void DrawShape(Gdiplus::Graphics& graphics, const PixelGrid& grid, const Shape& shape,
               const Color& color) {
  std::vector<PointF> points;
  for (const PointF& point : shape.points) points.push_back(grid.At(point));
  const auto count = static_cast<INT>(points.size());
  const Gdiplus::SolidBrush brush(color);
  Gdiplus::Pen pen(color, grid.Stroke());
  pen.SetLineJoin(Gdiplus::LineJoinRound);
  pen.SetStartCap(Gdiplus::LineCapRound);
  pen.SetEndCap(Gdiplus::LineCapRound);
  switch (shape.form) {
    case Form::kFilled:
      graphics.FillPolygon(&brush, points.data(), count);
      break;
    case Form::kClosed:
      graphics.DrawPolygon(&pen, points.data(), count);
      break;
    case Form::kOpen:
      graphics.DrawLines(&pen, points.data(), count);
      break;
  }
}

void FillRounded(Gdiplus::Graphics& graphics, const Gdiplus::RectF& place, REAL radius,
                 const Color& color) {
  const REAL size = 2 * radius;
  const REAL right = place.GetRight() - size;
  const REAL bottom = place.GetBottom() - size;
  Gdiplus::GraphicsPath path;
  path.AddArc(place.X, place.Y, size, size, 180, 90);
  path.AddArc(right, place.Y, size, size, 270, 90);
  path.AddArc(right, bottom, size, size, 0, 90);
  path.AddArc(place.X, bottom, size, size, 90, 90);
  path.CloseFigure();
  const Gdiplus::SolidBrush brush(color);
  graphics.FillPath(&brush, &path);
}

void DrawFace(Gdiplus::Graphics& graphics, const RECT& place, REAL unit, const Palette& palette) {
  const REAL line = std::max(1.0f, std::floor(kBorderUnits * unit));
  Gdiplus::RectF area(static_cast<REAL>(place.left), static_cast<REAL>(place.top),
                      static_cast<REAL>(place.right - place.left),
                      static_cast<REAL>(place.bottom - place.top));
  FillRounded(graphics, area, kCornerUnits * unit, palette.border);
  area.Inflate(-line, -line);
  FillRounded(graphics, area, kCornerUnits * unit - line, palette.face);
}

}  // namespace

void DrawButtonImage(HDC target, const RECT& place, ButtonImage image, ButtonBitmap look) {
  if (look == ButtonBitmap::kNone || IsRectEmpty(&place)) return;
  const Palette palette = PaletteOf(look);
  const PixelGrid grid(place);
  Gdiplus::Graphics graphics(target);
  graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
  // An area reaches from edge to edge of its pixels, a line runs through their middles.
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  DrawFace(graphics, place, grid.Unit(), palette);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeNone);
  for (const Shape& shape : ShapesOf(image)) {
    DrawShape(graphics, grid, shape, palette.Of(shape.paint));
  }
}

}  // namespace qutav
