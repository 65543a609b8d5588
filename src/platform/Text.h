// Text at the system's edges, and the small text operations that every floor needs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Unicode.h"

namespace qutav {

/// UTF-16 to the local code page (`WideCharToMultiByte` with CP_ACP; UTF-8 on POSIX). What the code
/// page lacks is lost.
std::string ToLocalCodePage(std::u16string_view text);

/// The local code page to UTF-16 (`MultiByteToWideChar` with CP_ACP; UTF-8 on POSIX).
std::u16string FromLocalCodePage(std::string_view bytes);

/// Decimal text of a number.
std::u16string ToDecimal(std::int64_t number);

/// The leading decimal integer of a text as `wcstol` reads it: blanks and a sign may stand before
/// it, anything else gives 0, and a number out of range gives the nearest in range.
int ParseDecimal(std::u16string_view text);

/// One of the ten ASCII digits.
constexpr bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

/// ASCII letters in lower case, all else as it stands.
std::u16string ToLowerAscii(std::u16string_view text);

/// One unit in lower case as the system's own lists have it (`CharLowerW`), in no special language.
char16_t ToLowerCase(char16_t unit);

/// Equal without regard to the case of ASCII letters.
bool EqualsIgnoringCase(std::u16string_view a, std::u16string_view b);

/// Every occurrence of `from` replaced, from left to right; an empty `from` changes nothing.
std::u16string ReplaceAll(std::u16string text, std::u16string_view from, std::u16string_view to);

/// Without blanks, tabs, carriage returns and line feeds at both ends.
std::u16string Trimmed(std::u16string_view text);

}  // namespace qutav
