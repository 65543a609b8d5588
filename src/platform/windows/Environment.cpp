#include "platform/Environment.h"

#include <cstdlib>

#include "platform/Text.h"
#include "platform/windows/Wide.h"

namespace qutav {

// `getenv` tells in the code page, which lacks what a password or a path may hold.
std::optional<std::string> EnvironmentText(const std::string& name) {
  const wchar_t* value = _wgetenv(Wide(FromUtf8(name)));
  if (value == nullptr) return {};
  return ToUtf8(FromWide(value));
}

}  // namespace qutav
