#include "windows/WindowPixels.h"

namespace qutav::test {

WindowPixels::WindowPixels(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  width_ = client.right;
  height_ = client.bottom;
  pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));

  UpdateWindow(window);
  const HDC source = GetDC(window);
  const HDC target = CreateCompatibleDC(source);
  const HBITMAP bitmap = CreateCompatibleBitmap(source, width_, height_);
  const HGDIOBJ former = SelectObject(target, bitmap);
  BitBlt(target, 0, 0, width_, height_, source, 0, 0, SRCCOPY);
  SelectObject(target, former);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), width_, -height_, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  GetDIBits(target, bitmap, 0, static_cast<UINT>(height_), pixels_.data(), &info, DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(target);
  ReleaseDC(window, source);
  for (std::uint32_t& pixel : pixels_) pixel &= 0xFFFFFF;
}

}  // namespace qutav::test
