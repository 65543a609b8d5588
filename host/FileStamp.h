#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace qutav::host {

/// What tells one content of a file from the next without reading it.
struct FileStamp {
  std::filesystem::file_time_type time;
  std::uintmax_t size = 0;
  bool operator==(const FileStamp&) const = default;
};

/// Nothing when no such file can be looked at.
std::optional<FileStamp> StampOf(const std::filesystem::path& file);

}  // namespace qutav::host
