#include "platform/posix/Path.h"

#include <algorithm>

#include "platform/Text.h"

namespace qutav {

std::string NativePath(std::u16string_view path) {
  std::string native = ToUtf8(path);
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

std::u16string WindowsForm(std::string_view path) {
  std::u16string text = FromUtf8(path);
  std::replace(text.begin(), text.end(), u'/', u'\\');
  return text;
}

}  // namespace qutav
