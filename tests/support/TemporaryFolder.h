// Real files for tests of what touches the machine.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "platform/Utf8Path.h"

namespace qutav::test {

/// A folder of the test's own, removed at its end. Its name holds a blank, an umlaut and Japanese.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() /
              PathFromUtf8("qutav t\xC3\xA9st \xE3\x81\x82 " + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Native() const { return path_; }
  std::filesystem::path Native(const std::string& name) const { return path_ / PathFromUtf8(name); }

  /// The Windows-form path of a name in the folder.
  std::u16string Path(const std::string& name) const {
    std::u16string path = Native(name).u16string();
    std::replace(path.begin(), path.end(), u'/', u'\\');
    return path;
  }

  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(Native(name), std::ios::binary) << bytes;
  }

  /// The bytes of a file; "(none)" when there is none.
  std::string BytesOf(const std::string& name) const {
    std::ifstream stream(Native(name), std::ios::binary);
    if (!stream) return "(none)";
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

  std::size_t EntryCount() const {
    const std::filesystem::directory_iterator entries(path_);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
  }

 private:
  std::filesystem::path path_;
};

}  // namespace qutav::test
