#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace qutav::host {

/// A folder of the test's own, removed at its end. Its name holds a blank and an umlaut.
class TestFolder {
 public:
  TestFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "qutav host tést XXXXXX";
    path_ = mkdtemp(pattern.data());
  }
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

  std::filesystem::path Write(const std::string& name, const std::string& bytes) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

  std::string Read(const std::string& name) const {
    std::ifstream stream(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

 private:
  std::filesystem::path path_;
};

/// A document that every check accepts, with the given members of "data".
inline std::string DocumentText(const std::string& data) {
  return R"({"playerTarget": "Android", "scriptVersion": "3", )"
         R"("stage": {"width": 800, "height": 480}, "data": {)" +
         data + "}}";
}

}  // namespace qutav::host
