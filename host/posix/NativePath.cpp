#include "host/NativePath.h"

#include <algorithm>

#include "host/TextEncoding.h"

namespace qutav::host {

std::u16string ToNativeForm(const std::filesystem::path& path) {
  std::u16string text = FromUtf8(path.native());
  std::replace(text.begin(), text.end(), u'/', u'\\');
  return text;
}

std::filesystem::path FromNativeForm(std::u16string_view text) {
  std::string bytes = ToUtf8(text);
  std::replace(bytes.begin(), bytes.end(), '\\', '/');
  return bytes;
}

bool HasNativeForm(const std::filesystem::path& path) {
  // A backslash in a name would turn into a folder, and bytes that are not UTF-8 get lost.
  return FromNativeForm(ToNativeForm(path)).native() == path.native();
}

std::string ToSettingsForm(const std::filesystem::path& path) { return path.native(); }

}  // namespace qutav::host
