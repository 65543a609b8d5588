#include "platform/Text.h"
#include "platform/windows/System.h"

namespace qutav {

// A character in the place of a pointer asks for that character alone.
char16_t ToLowerCase(char16_t unit) {
  auto* character = reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(unit));
  return static_cast<char16_t>(reinterpret_cast<ULONG_PTR>(CharLowerW(character)));
}

}  // namespace qutav
