#include "platform/windows/Path.h"

#include <string_view>

#include "platform/windows/System.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

// The longest path that every call takes as it stands: a folder must have room for a short name.
constexpr std::size_t kLongestPlainPath = MAX_PATH - 13;
constexpr std::u16string_view kLongPrefix = u"\\\\?\\";
constexpr std::u16string_view kLongSharePrefix = u"\\\\?\\UNC\\";

}  // namespace

std::u16string FullPath(const std::u16string& path) {
  const DWORD size = GetFullPathNameW(Wide(path), 0, nullptr, nullptr);
  std::u16string full(size, u'\0');
  full.resize(GetFullPathNameW(Wide(path), size, WideBuffer(full), nullptr));
  return full;
}

std::u16string NativePath(const std::u16string& path) {
  if (path.starts_with(kLongPrefix)) return path;
  const std::u16string full = FullPath(path);
  // A short path stands as it is: a name that ends in a dot or blank must not mean something else.
  if (full.size() <= kLongestPlainPath) return path;
  if (full.starts_with(u"\\\\")) return std::u16string(kLongSharePrefix) + full.substr(2);
  return std::u16string(kLongPrefix) + full;
}

}  // namespace qutav
