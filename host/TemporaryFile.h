#pragma once

#include <filesystem>
#include <string_view>

namespace qutav::host {

/// A new file in the temporary folder that only its owner can read; removed at the end of its
/// life. Construction throws std::system_error when the file cannot be made or written.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string_view content);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace qutav::host
