// Replacing a file as a whole.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace qutav {

/// Fills a new file beside `target` and puts it in the target's place: a reader sees the old
/// content or the new, never a part. A link is followed, and an existing file keeps its
/// permissions; a new one gets `mode` less the process's mask. False, and nothing changed, when any
/// step fails.
bool ReplaceFile(const std::filesystem::path& target, unsigned mode,
                 const std::function<bool(int descriptor)>& fill);

/// Writes all bytes to a descriptor.
bool WriteAll(int descriptor, std::string_view bytes);

}  // namespace qutav
