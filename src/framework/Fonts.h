#pragma once

namespace qutav {

/// The font face of fields for texts that may be East Asian.
inline constexpr char16_t kEastAsianFace[] = u"SimSun-18030";

}  // namespace qutav
