#include "host/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "host/posix/FileDescriptor.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;

fs::path BesideFile(const fs::path& file) {
  return file.parent_path() /
         ("." + file.filename().native() + "." + std::to_string(getpid()) + ".new");
}

void TakeOverPermissions(const FileDescriptor& descriptor, const fs::path& file) {
  struct stat status = {};
  if (stat(file.c_str(), &status) == 0) fchmod(descriptor.Number(), status.st_mode & 07777U);
}

std::error_code WriteNewFile(const fs::path& fresh, const fs::path& file, std::string_view bytes) {
  FileDescriptor descriptor(open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!descriptor.IsOpen()) return LastSystemError();
  TakeOverPermissions(descriptor, file);
  if (const std::error_code error = descriptor.Write(bytes)) return error;
  // Without this a crash of the machine could leave the new name with no content.
  if (fsync(descriptor.Number()) != 0) return LastSystemError();
  return descriptor.Close();
}

}  // namespace

std::error_code WriteFileAtomically(const fs::path& file, std::string_view bytes) {
  std::error_code ignored;
  const fs::path target = fs::exists(file, ignored) ? fs::canonical(file, ignored) : file;
  const fs::path fresh = BesideFile(target);
  fs::remove(fresh, ignored);
  std::error_code error = WriteNewFile(fresh, target, bytes);
  if (!error && rename(fresh.c_str(), target.c_str()) != 0) error = LastSystemError();
  if (error) fs::remove(fresh, ignored);
  return error;
}

}  // namespace qutav::host
