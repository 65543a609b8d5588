#include "Files.h"

#include <algorithm>

namespace launcher {

std::filesystem::path PathOf(std::string text) {
  std::replace(text.begin(), text.end(), '\\', '/');
  return std::u8string(text.begin(), text.end());
}

std::string TextOf(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

}  // namespace launcher
