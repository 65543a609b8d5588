// Provisioning profiles: signed files that hold a property list in plain text. The signature, and
// all else around the list, is not looked at.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qutav {

/// The property list in a profile's bytes. One without an end reaches to the end of the bytes,
/// unless it begins within the first eight of them: then it ends behind byte seven. Throws
/// `std::out_of_range` when there is no list.
std::string CutPropertyList(std::string_view profile);

/// The identifier that a profile covers, perhaps with an asterisk; nothing when its list does not
/// parse or tells none. A copy of the list lies in the movie's folder meanwhile. Throws like
/// `CutPropertyList`, for a file that cannot be read too.
std::optional<std::u16string> ReadProvisioningProfile(const std::u16string& path);

/// The App ID that a profile's identifier leaves or makes of one.
std::u16string CoveredApplicationId(const std::u16string& identifier,
                                    const std::u16string& applicationId);

}  // namespace qutav
