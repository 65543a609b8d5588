#include <clocale>
#include <cwctype>

#include "platform/Text.h"

namespace qutav {

// The program's own locale is the host's business and is not asked.
char16_t ToLowerCase(char16_t unit) {
  static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  if (unicode == nullptr) return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit;
  return static_cast<char16_t>(towlower_l(unit, unicode));
}

}  // namespace qutav
