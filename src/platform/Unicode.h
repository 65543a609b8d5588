// UTF-16 and its encodings in bytes.
#pragma once

#include <string>
#include <string_view>

namespace qutav {

/// UTF-8 of a UTF-16 text. A surrogate without its partner becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// UTF-16 of a UTF-8 text. Each byte that is not part of a valid sequence becomes U+FFFD.
std::u16string FromUtf8(std::string_view bytes);

/// Every UTF-16 unit encoded by itself (CESU-8), so that a surrogate pair takes six bytes and a
/// lone surrogate survives.
std::string ToCesu8(std::u16string_view text);

/// The reverse; also takes four-byte sequences.
std::u16string FromCesu8(std::string_view bytes);

}  // namespace qutav
