#include "platform/Images.h"

#include <memory>

#include "platform/Services.h"
#include "platform/windows/GdiPlus.h"
#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"

// behind the system's own header
#include <objidl.h>
#include <shlwapi.h>
// behind objidl.h
#include <gdiplus.h>

namespace qutav {
namespace {

bool IsPng(const std::string& bytes) { return bytes.starts_with("\x89PNG\r\n\x1a\n"); }

bool IsReasonable(Gdiplus::Bitmap& bitmap) {
  const UINT width = bitmap.GetWidth();
  const UINT height = bitmap.GetHeight();
  return width > 0 && height > 0 && width <= Images::kGreatestSide &&
         height <= Images::kGreatestSide;
}

std::shared_ptr<const Image> ReadPixels(Gdiplus::Bitmap& bitmap) {
  auto image = std::make_shared<Image>();
  image->width = static_cast<int>(bitmap.GetWidth());
  image->height = static_cast<int>(bitmap.GetHeight());
  image->pixels.resize(static_cast<std::size_t>(image->width) * bitmap.GetHeight());
  Gdiplus::BitmapData data{};
  data.Width = bitmap.GetWidth();
  data.Height = bitmap.GetHeight();
  data.Stride = image->width * 4;
  data.PixelFormat = PixelFormat32bppARGB;
  data.Scan0 = image->pixels.data();
  const Gdiplus::Rect whole(0, 0, image->width, image->height);
  const UINT mode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf;
  if (bitmap.LockBits(&whole, mode, PixelFormat32bppARGB, &data) != Gdiplus::Ok) return {};
  bitmap.UnlockBits(&data);
  return image;
}

// The file is read whole before, so that nobody finds it locked.
class GdiPlusImages final : public Images {
 public:
  std::shared_ptr<const Image> Load(const std::u16string& path) override {
    const auto bytes = TheServices().files->Read(path);
    const GdiPlusSession gdiPlus;
    if (!bytes || !IsPng(*bytes) || !gdiPlus.IsRunning()) return {};
    IStream* stream = SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes->data()),
                                        static_cast<UINT>(bytes->size()));
    if (stream == nullptr) return {};
    const std::unique_ptr<Gdiplus::Bitmap> bitmap(Gdiplus::Bitmap::FromStream(stream));
    stream->Release();
    const bool loaded = bitmap != nullptr && bitmap->GetLastStatus() == Gdiplus::Ok;
    return loaded && IsReasonable(*bitmap) ? ReadPixels(*bitmap) : nullptr;
  }
};

}  // namespace

Images& SystemImages() {
  static GdiPlusImages images;
  return images;
}

}  // namespace qutav
