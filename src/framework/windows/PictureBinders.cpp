#include "framework/windows/PictureBinders.h"

#include <tuple>
#include <utility>

// behind the system's own header
#include <objidl.h>
// behind objidl.h
#include <gdiplus.h>

namespace qutav {
namespace {

Gdiplus::RectF InWindow(const Picture& picture, const RECT& window) {
  const float x =
      static_cast<float>(window.right - window.left) / static_cast<float>(picture.width);
  const float y =
      static_cast<float>(window.bottom - window.top) / static_cast<float>(picture.height);
  const Rectangle& target = picture.Target();
  return {static_cast<float>(target.left) * x, static_cast<float>(target.top) * y,
          static_cast<float>(target.Width()) * x, static_cast<float>(target.Height()) * y};
}

bool IsSame(const Rectangle& a, const Rectangle& b) {
  return std::tie(a.left, a.top, a.right, a.bottom) == std::tie(b.left, b.top, b.right, b.bottom);
}

void DrawImage(Gdiplus::Graphics& graphics, const Image& image, const Gdiplus::RectF& target) {
  auto* pixels = const_cast<std::uint32_t*>(image.pixels.data());
  Gdiplus::Bitmap bitmap(image.width, image.height, image.width * 4, PixelFormat32bppARGB,
                         reinterpret_cast<BYTE*>(pixels));
  graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  // Without its neighbours mirrored an edge would be mixed with nothing.
  Gdiplus::ImageAttributes edges;
  edges.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
  graphics.DrawImage(&bitmap, target, 0, 0, static_cast<float>(image.width),
                     static_cast<float>(image.height), Gdiplus::UnitPixel, &edges);
}

}  // namespace

PictureBinder::PictureBinder(Picture& picture, const WindowPlace& place)
    : ControlBinder(picture, place, {WC_STATICW, SS_OWNERDRAW, 0, true}), picture_(picture) {}

// Nothing is told of what goes wrong: a message over the window would have it painted again.
void PictureBinder::Repaint() const {
  try {
    if (picture_.onPaint) picture_.onPaint();
  } catch (...) {
    picture_.Clear(picture_.Background());
  }
}

// What a handler has just painted is shown as it is; any other drawing is a paint of the dialog. It
// is drawn aside first, or it would flicker.
void PictureBinder::OnDrawItem(const DRAWITEMSTRUCT& item) {
  if (!std::exchange(changedByModel_, false)) Repaint();
  Gdiplus::Bitmap canvas(item.rcItem.right, item.rcItem.bottom, PixelFormat32bppPARGB);
  Gdiplus::Graphics aside(&canvas);
  aside.Clear(Gdiplus::Color(picture_.Background()));
  if (picture_.Painted()) DrawImage(aside, *picture_.Painted(), InWindow(picture_, item.rcItem));
  Gdiplus::Graphics(item.hDC).DrawImage(&canvas, 0, 0, item.rcItem.right, item.rcItem.bottom);
  shownBackground_ = picture_.Background();
  shownImage_ = picture_.Painted();
  shownTarget_ = picture_.Target();
  drawn_ = true;
}

void PictureBinder::Show() {
  if (shownBackground_ == picture_.Background() && shownImage_ == picture_.Painted() &&
      IsSame(shownTarget_, picture_.Target())) {
    return;
  }
  changedByModel_ = drawn_;
  InvalidateRect(Window(), nullptr, FALSE);
}

ProgressBarBinder::ProgressBarBinder(ProgressBar& bar, const WindowPlace& place)
    : ControlBinder(bar, place, {PROGRESS_CLASSW, PBS_MARQUEE}), bar_(bar) {}

void ProgressBarBinder::Show() {
  if (bar_.rangeEnd != rangeEnd_) {
    rangeEnd_ = bar_.rangeEnd;
    Send(PBM_SETRANGE32, 0, rangeEnd_);
  }
  if (bar_.marqueeStep != marqueeStep_) {
    marqueeStep_ = bar_.marqueeStep;
    Send(PBM_SETMARQUEE, marqueeStep_.count() > 0 ? TRUE : FALSE,
         static_cast<LPARAM>(marqueeStep_.count()));
  }
}

}  // namespace qutav
