// Pictures in files.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qutav {

struct Image {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  ///< row by row from the top, 0xAARRGGBB, not premultiplied
};

class Images {
 public:
  /// Nothing larger in either direction is read: no icon is, and a damaged file may claim to be.
  static constexpr int kGreatestSide = 8192;

  virtual ~Images() = default;
  /// Reads a PNG file (GDI+ on Windows, libpng on POSIX); null for anything that is none.
  virtual std::shared_ptr<const Image> Load(const std::u16string& path) = 0;
};

}  // namespace qutav
