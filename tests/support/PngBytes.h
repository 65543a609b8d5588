// PNG files made byte by byte, so that a test can have any kind of them and damaged ones.
#pragma once

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

/// The checksum at the end of a chunk.
inline std::uint32_t PngChecksum(std::string_view bytes) {
  std::uint32_t rest = 0xFFFFFFFF;
  for (const char byte : bytes) {
    rest ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ ((rest & 1) != 0 ? 0xEDB88320 : 0);
  }
  return ~rest;
}

inline std::string PngChunk(const std::string& type, const std::string& content) {
  const std::string checked = type + content;
  return BigEndian(static_cast<std::uint32_t>(content.size())) + checked +
         BigEndian(PngChecksum(checked));
}

/// The checksum at the end of a deflated stream.
inline std::uint32_t StreamChecksum(std::string_view bytes) {
  constexpr std::uint32_t kPrime = 65521;
  std::uint32_t sum = 1;
  std::uint32_t sumOfSums = 0;
  for (const char byte : bytes) {
    sum = (sum + static_cast<unsigned char>(byte)) % kPrime;
    sumOfSums = (sumOfSums + sum) % kPrime;
  }
  return (sumOfSums << 16) | sum;
}

/// A deflated stream whose blocks hold their bytes as they are: nothing has to pack them.
inline std::string Stored(std::string_view bytes) {
  constexpr std::size_t kLongestBlock = 0xFFFF;
  std::string stream = "\x78\x01";
  for (std::size_t start = 0; start < bytes.size(); start += kLongestBlock) {
    const std::string_view block = bytes.substr(start, kLongestBlock);
    const auto low = static_cast<char>(block.size());
    const auto high = static_cast<char>(block.size() >> 8);
    const bool isLast = start + block.size() == bytes.size();
    stream +=
        {static_cast<char>(isLast), low, high, static_cast<char>(~low), static_cast<char>(~high)};
    stream += block;
  }
  return stream + BigEndian(StreamChecksum(bytes));
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
         (palette.empty() ? "" : PngChunk("PLTE", palette)) + PngChunk("IDAT", Stored(scanLines)) +
         PngChunk("IEND", "");
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
