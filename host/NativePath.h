#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace qutav::host {

/// The path as scripts and the library see it: Windows-form text with backslashes.
/// On POSIX `/home/u/x` is `\home\u\x`.
std::u16string ToNativeForm(const std::filesystem::path& path);

/// The reverse; takes slashes as well.
std::filesystem::path FromNativeForm(std::u16string_view text);

/// Whether `FromNativeForm(ToNativeForm(path))` names the same file.
bool HasNativeForm(const std::filesystem::path& path);

/// The path in UTF-8 with forward slashes, as settings keep it.
std::string ToSettingsForm(const std::filesystem::path& path);

}  // namespace qutav::host
