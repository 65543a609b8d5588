#include "platform/posix/FileReplacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <string>

namespace qutav {
namespace {

namespace fs = std::filesystem;

fs::path FollowLink(const fs::path& target) {
  std::error_code error;
  fs::path real = fs::canonical(target, error);
  return error ? target : real;
}

fs::path NeighbourOf(const fs::path& target) {
  static std::atomic<unsigned> counter{0};
  return target.parent_path() /
         (".qutav." + std::to_string(getpid()) + "." + std::to_string(++counter));
}

// Whether the target may be replaced. The new file then belongs to whom the old one belonged, as
// far as this process can give it away, and has its permissions.
bool KeepOwnerAndPermissions(const fs::path& target, int descriptor) {
  struct stat old {};
  if (stat(target.c_str(), &old) != 0) return errno == ENOENT;
  if (!S_ISREG(old.st_mode) || access(target.c_str(), W_OK) != 0) return false;
  const bool given = fchown(descriptor, old.st_uid, old.st_gid) == 0;
  // Rights of a group are not for another group.
  return fchmod(descriptor, old.st_mode & (given ? 0777u : 0707u)) == 0;
}

// Opens a new file beside the target. One that a killed process has left there is passed by: its
// name can come again where process ids do.
int OpenNeighbour(const fs::path& target, unsigned mode, fs::path& fresh) {
  constexpr int kTries = 100;
  for (int i = 0; i < kTries; ++i) {
    fresh = NeighbourOf(target);
    const int descriptor = open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor >= 0 || errno != EEXIST) return descriptor;
  }
  return -1;
}

}  // namespace

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool ReplaceFile(const fs::path& target, unsigned mode, const std::function<bool(int)>& fill) {
  const fs::path real = FollowLink(target);
  fs::path fresh;
  const int descriptor = OpenNeighbour(real, mode, fresh);
  if (descriptor < 0) return false;
  bool done =
      KeepOwnerAndPermissions(real, descriptor) && fill(descriptor) && fsync(descriptor) == 0;
  done = close(descriptor) == 0 && done;
  done = done && rename(fresh.c_str(), real.c_str()) == 0;
  if (!done) unlink(fresh.c_str());
  return done;
}

}  // namespace qutav
