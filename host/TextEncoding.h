// Texts on their way through the table, where they are UTF-16, and through the script engine, whose
// own form is CESU-8.
#pragma once

#include "platform/Unicode.h"

namespace qutav::host {

using qutav::FromUtf8;
using qutav::ToUtf8;

inline std::string ToScriptBytes(std::u16string_view text) { return ToCesu8(text); }
inline std::u16string FromScriptBytes(std::string_view bytes) { return FromCesu8(bytes); }

}  // namespace qutav::host
