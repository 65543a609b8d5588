#pragma once

#include <cstdint>
#include <string>

namespace qutav {

/// The system's text for an error in the user's default language (`FormatMessageW`), with the line
/// end that the system puts there; empty when it has none.
std::u16string SystemTextOf(std::uint32_t error);

}  // namespace qutav
