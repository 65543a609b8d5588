#pragma once

#include <filesystem>
#include <string>

#include "host/Refusal.h"

namespace qutav::host {

class LibraryError : public Refusal {
 public:
  using Refusal::Refusal;
};

/// A shared library that stays loaded until the process ends: it has no shutdown step, and its
/// threads and exit handlers may outlive any object of ours.
class SharedLibrary {
 public:
  /// Throws LibraryError when the file is missing or cannot be loaded.
  explicit SharedLibrary(const std::filesystem::path& file);

  /// Throws LibraryError when the library has no such export.
  void* Address(const std::string& symbol) const;

  /// The file name of the publishing extension on this system.
  static std::string ExtensionFileName();

 private:
  std::filesystem::path file_;
  void* handle_;
};

}  // namespace qutav::host
