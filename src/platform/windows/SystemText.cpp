#include "platform/windows/SystemText.h"

#include "platform/windows/System.h"
#include "platform/windows/Wide.h"

namespace qutav {

std::u16string SystemTextOf(std::uint32_t error) {
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, error, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), reinterpret_cast<wchar_t*>(&text),
      0, nullptr);
  if (length == 0) return {};
  const std::u16string copy = FromWide({text, length});
  LocalFree(text);
  return copy;
}

}  // namespace qutav
