#include "platform/Files.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/posix/FileReplacement.h"
#include "platform/posix/Path.h"
#include "platform/posix/SystemServices.h"

namespace qutav {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kNewFileMode = 0666;

fs::path AbsolutePath(const std::string& native) {
  std::error_code error;
  return fs::absolute(native, error).lexically_normal();
}

bool CopyContent(int from, int to) {
  while (true) {
    const ssize_t sent = sendfile(to, from, nullptr, std::size_t{1} << 24);
    if (sent < 0) return false;
    if (sent == 0) return true;
  }
}

class PosixFiles final : public Files {
 public:
  std::optional<FoundFile> Find(const std::u16string& path) override {
    const std::string native = NativePath(path);
    struct stat status {};
    if (native.empty() || native.back() == '/' || stat(native.c_str(), &status) != 0) return {};
    const fs::path absolute = AbsolutePath(native);
    FoundFile found{WindowsForm(absolute.filename().string()),
                    WindowsForm(absolute.parent_path().string())};
    if (found.root.empty() || found.root.back() != u'\\') found.root += u'\\';
    return found;
  }

  bool Copy(const std::u16string& from, const std::u16string& to) override {
    const int source = open(NativePath(from).c_str(), O_RDONLY | O_CLOEXEC);
    if (source < 0) return false;
    const bool done = ReplaceFile(NativePath(to), kNewFileMode,
                                  [&](int target) { return CopyContent(source, target); });
    close(source);
    return done;
  }

  bool Delete(const std::u16string& path) override { return unlink(NativePath(path).c_str()) == 0; }

  bool CreateFolder(const std::u16string& path) override {
    return mkdir(NativePath(path).c_str(), 0777) == 0;
  }

  bool RemoveFolder(const std::u16string& path) override {
    return rmdir(NativePath(path).c_str()) == 0;
  }

  std::optional<std::string> Read(const std::u16string& path) override {
    const std::string native = NativePath(path);
    std::error_code error;
    if (!fs::is_regular_file(native, error)) return {};
    std::ifstream stream(native, std::ios::binary);
    std::ostringstream bytes;
    if (!stream || (stream.peek() != EOF && !(bytes << stream.rdbuf()))) return {};
    return std::move(bytes).str();
  }

  bool Write(const std::u16string& path, std::string_view bytes) override {
    return ReplaceFile(NativePath(path), kNewFileMode,
                       [&](int descriptor) { return WriteAll(descriptor, bytes); });
  }

  bool IsRooted(const std::u16string& path) const override {
    return NativePath(path).starts_with('/') || path.find(u':') != path.npos;
  }

  std::string_view LineEnd() const override { return "\n"; }
};

}  // namespace

Files& SystemFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace qutav
