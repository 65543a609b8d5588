// Files and folders. Paths are Windows-form text on every system; slashes of both kinds separate.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qutav {

/// What a search for one path found.
struct FoundFile {
  std::u16string name;  ///< the last component as the system knows it
  std::u16string root;  ///< the folder in which it lies, absolute, ending in a separator
};

class Files {
 public:
  virtual ~Files() = default;

  /// Looks for a file or folder (`FindFirstFileW`). A path that ends in a separator finds nothing,
  /// not even an existing folder.
  virtual std::optional<FoundFile> Find(const std::u16string& path) = 0;

  /// Copies a file over whatever stands at `to` (`CopyFileW`). False when it could not.
  virtual bool Copy(const std::u16string& from, const std::u16string& to) = 0;

  /// Deletes a file (`DeleteFileW`).
  virtual bool Delete(const std::u16string& path) = 0;

  /// Creates one folder (`CreateDirectoryW`); false also when it exists.
  virtual bool CreateFolder(const std::u16string& path) = 0;

  /// Removes an empty folder (`RemoveDirectoryW`).
  virtual bool RemoveFolder(const std::u16string& path) = 0;

  /// The bytes of a file, nothing when it cannot be read.
  virtual std::optional<std::string> Read(const std::u16string& path) = 0;

  /// Replaces the file's content as a whole: a failure, even of the machine, leaves the old content
  /// or the new one and nothing between.
  virtual bool Write(const std::u16string& path, std::string_view bytes) = 0;

  /// Whether a path names a place by itself, whatever folder is current: one with a drive, and on
  /// POSIX one that begins at the root.
  virtual bool IsRooted(const std::u16string& path) const = 0;

  /// The end of a line in a text file.
  virtual std::string_view LineEnd() const = 0;

  bool Exists(const std::u16string& path) { return Find(path).has_value(); }
};

}  // namespace qutav
