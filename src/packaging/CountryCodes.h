#pragma once

#include <string>
#include <vector>

namespace qutav {

/// The country codes that a certificate's country box offers (ISO 3166-1 alpha-2), in the order in
/// which they are kept.
std::vector<std::u16string> CountryCodes();

}  // namespace qutav
