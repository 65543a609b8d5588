#include "platform/Images.h"

#include <png.h>

#include <memory>

#include "platform/Services.h"
#include "platform/posix/SystemServices.h"

namespace qutav {
namespace {

struct FreePng {
  void operator()(png_image* header) const { png_image_free(header); }
};

bool IsReasonable(const png_image& header) {
  return header.width <= Images::kGreatestSide && header.height <= Images::kGreatestSide;
}

std::shared_ptr<const Image> ReadPixels(png_image& header) {
  auto image = std::make_shared<Image>();
  image->width = static_cast<int>(header.width);
  image->height = static_cast<int>(header.height);
  image->pixels.resize(std::size_t{header.width} * header.height);
  header.format = PNG_FORMAT_BGRA;  // in memory, from the low byte: 0xAARRGGBB
  // Unless the file says otherwise, the library takes 16 bits for linear light and brightens them.
  header.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;
  if (png_image_finish_read(&header, nullptr, image->pixels.data(), 0, nullptr) == 0) return {};
  return image;
}

class PngImages final : public Images {
 public:
  std::shared_ptr<const Image> Load(const std::u16string& path) override {
    const auto bytes = TheServices().files->Read(path);
    if (!bytes) return {};
    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&header, bytes->data(), bytes->size()) == 0) return {};
    const std::unique_ptr<png_image, FreePng> guard(&header);
    return IsReasonable(header) ? ReadPixels(header) : nullptr;
  }
};

}  // namespace

Images& SystemImages() {
  static PngImages images;
  return images;
}

}  // namespace qutav
