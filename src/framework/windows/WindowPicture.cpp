#include "framework/windows/WindowPicture.h"

#include <memory>

#include "platform/Text.h"
#include "platform/windows/GdiPlus.h"
#include "platform/windows/Wide.h"

// behind the system's own header
#include <objidl.h>
// behind objidl.h
#include <gdiplus.h>

namespace qutav {
namespace {

// The encoder of PNG files among those of the system.
constexpr CLSID kPng = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

class WindowContext {
 public:
  explicit WindowContext(HWND window) : window_(window), context_(GetWindowDC(window)) {}
  ~WindowContext() { ReleaseDC(window_, context_); }
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;
  HDC Get() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

}  // namespace

bool WriteWindowPicture(HWND window, const std::string& path) {
  SetActiveWindow(window);
  SendMessageW(window, WM_NCACTIVATE, TRUE, 0);  // whichever program is in front
  RedrawWindow(window, nullptr, nullptr,
               RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
  RECT rect{};
  GetWindowRect(window, &rect);
  const int width = rect.right - rect.left;
  const int height = rect.bottom - rect.top;
  const GdiPlusSession gdiPlus;
  Gdiplus::Bitmap bitmap(width, height, PixelFormat32bppRGB);
  Gdiplus::Graphics graphics(&bitmap);
  const HDC target = graphics.GetHDC();
  const WindowContext source(window);
  BitBlt(target, 0, 0, width, height, source.Get(), 0, 0, SRCCOPY);
  graphics.ReleaseHDC(target);
  return bitmap.Save(Wide(FromUtf8(path)), &kPng, nullptr) == Gdiplus::Ok;
}

}  // namespace qutav
