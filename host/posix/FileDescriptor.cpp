#include "host/posix/FileDescriptor.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

namespace qutav::host {

FileDescriptor::~FileDescriptor() {
  if (IsOpen()) close(number_);
}

std::error_code FileDescriptor::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = write(number_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return LastSystemError();
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

std::error_code FileDescriptor::Close() {
  return close(std::exchange(number_, -1)) == 0 ? std::error_code() : LastSystemError();
}

std::error_code LastSystemError() { return {errno, std::generic_category()}; }

}  // namespace qutav::host
