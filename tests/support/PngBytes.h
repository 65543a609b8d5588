// PNG files made byte by byte, so that a test can have any kind of them and damaged ones.
#pragma once

#include <zlib.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace qutav::test {

/// How a PNG file stores its pixels, with the numbers of its header.
enum class PngColour : char { kGrey = 0, kRgb = 2, kPalette = 3, kRgba = 6 };

struct PngHeader {
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  char bitDepth = 8;
  PngColour colour = PngColour::kRgba;
  bool interlaced = false;
};

inline constexpr std::string_view kPngSignature{"\x89PNG\r\n\x1A\n", 8};

inline std::string BigEndian(std::uint32_t number) {
  std::string bytes;
  for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(number >> shift);
  return bytes;
}

inline std::string PngChunk(const std::string& type, const std::string& content) {
  const std::string checked = type + content;
  const auto sum =
      crc32(0, reinterpret_cast<const Bytef*>(checked.data()), static_cast<uInt>(checked.size()));
  return BigEndian(static_cast<std::uint32_t>(content.size())) + checked +
         BigEndian(static_cast<std::uint32_t>(sum));
}

inline std::string Deflated(const std::string& bytes) {
  uLongf size = compressBound(static_cast<uLong>(bytes.size()));
  std::string packed(size, '\0');
  compress(reinterpret_cast<Bytef*>(packed.data()), &size,
           reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uLong>(bytes.size()));
  packed.resize(size);
  return packed;
}

inline std::string PngHeaderChunk(const PngHeader& header) {
  const std::string kinds = {header.bitDepth, static_cast<char>(header.colour), 0, 0,
                             static_cast<char>(header.interlaced)};
  return PngChunk("IHDR", BigEndian(header.width) + BigEndian(header.height) + kinds);
}

/// A file of these scan lines, each with its filter byte in front; `palette` in threes of bytes.
inline std::string PngBytes(const PngHeader& header, const std::string& scanLines,
                            const std::string& palette = "") {
  return std::string(kPngSignature) + PngHeaderChunk(header) +
         (palette.empty() ? "" : PngChunk("PLTE", palette)) +
         PngChunk("IDAT", Deflated(scanLines)) + PngChunk("IEND", "");
}

/// A square of one opaque colour.
inline std::string SquarePng(std::uint32_t side) {
  std::string line(1, '\0');
  for (std::uint32_t x = 0; x < side; ++x) line += "\x10\x20\x30\xFF";
  std::string lines;
  for (std::uint32_t y = 0; y < side; ++y) lines += line;
  return PngBytes({.width = side, .height = side}, lines);
}

}  // namespace qutav::test
