#include "host/NativePath.h"

#include "host/TextEncoding.h"

namespace qutav::host {

std::u16string ToNativeForm(const std::filesystem::path& path) {
  return std::filesystem::path(path).make_preferred().u16string();
}

std::filesystem::path FromNativeForm(std::u16string_view text) {
  return std::filesystem::path(text).make_preferred();
}

// Half a surrogate pair is a name that the system takes and UTF-8 cannot tell.
bool HasNativeForm(const std::filesystem::path& path) {
  const std::u16string text = path.u16string();
  return FromUtf8(ToUtf8(text)) == text;
}

std::string ToSettingsForm(const std::filesystem::path& path) {
  return ToUtf8(path.generic_u16string());
}

}  // namespace qutav::host
