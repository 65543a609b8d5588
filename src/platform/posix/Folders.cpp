#include "platform/Folders.h"

#include <cstdlib>
#include <filesystem>

#include "platform/posix/Path.h"
#include "platform/posix/SystemServices.h"

namespace qutav {
namespace {

std::string EnvironmentOr(const char* name, const char* fallback) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0' ? value : fallback;
}

class PosixFolders final : public Folders {
 public:
  std::u16string HostExecutable() override {
    std::error_code error;
    return WindowsForm(std::filesystem::read_symlink("/proc/self/exe", error).string());
  }

  std::u16string Temporary() override {
    std::u16string folder = WindowsForm(EnvironmentOr("TMPDIR", "/tmp"));
    if (folder.back() != u'\\') folder += u'\\';
    return folder;
  }

  std::u16string CommonProgramFiles() override {
    return WindowsForm(EnvironmentOr("CommonProgramFiles", "/opt"));
  }

  unsigned MajorVersion() override { return 0; }
};

}  // namespace

Folders& SystemFolders() {
  static PosixFolders folders;
  return folders;
}

}  // namespace qutav
