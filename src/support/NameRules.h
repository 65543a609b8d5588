// Which names a user may enter.
#pragma once

#include <string>

namespace qutav {

/// 1 to 212 letters a-z and A-Z, digits and dots. Hyphens and underscores are refused.
bool IsValidApplicationId(const std::u16string& text);

/// 1 to 38 letters and digits.
bool IsValidFileExtension(const std::u16string& text);

/// 1 to 38 letters, digits and dots, beginning with a letter.
bool IsValidFileTypeName(const std::u16string& text);

}  // namespace qutav
