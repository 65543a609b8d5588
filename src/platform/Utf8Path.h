#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace qutav {

/// The path that a text in UTF-8 names. A path's own constructor would take the bytes in the code
/// page on some systems.
inline std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}

}  // namespace qutav
