// Paths as the launchers are given them.
#pragma once

#include <filesystem>
#include <string>

namespace launcher {

/// The path that a text in UTF-8 names; callers write either slash on every system.
std::filesystem::path PathOf(std::string text);

/// The path as UTF-8, with forward slashes.
std::string TextOf(const std::filesystem::path& path);

}  // namespace launcher
