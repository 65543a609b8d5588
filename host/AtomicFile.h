#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace qutav::host {

/// Replaces the file's content as a whole: a reader finds the old bytes or the new ones, and a
/// failure leaves the old file as it was. Keeps an existing file's permissions and follows a link.
std::error_code WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes);

}  // namespace qutav::host
