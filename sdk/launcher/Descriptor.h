// The application descriptor, as far as a launcher needs it.
#pragma once

#include <filesystem>
#include <string>

namespace launcher {

struct Descriptor {
  std::string id;
  std::string name;
  std::filesystem::path content;  ///< absolute where the descriptor's path is
};

/// Reads a descriptor and checks that it is well formed and that its content is there. Throws
/// `std::runtime_error` with the reason.
Descriptor ReadDescriptor(const std::filesystem::path& file);

}  // namespace launcher
