#include "host/TemporaryFile.h"

#include <stdlib.h>

#include <string>
#include <system_error>

#include "host/posix/FileDescriptor.h"
#include "host/posix/SignalCleanup.h"

namespace qutav::host {

TemporaryFile::TemporaryFile(std::string_view content) {
  std::string pattern = std::filesystem::temp_directory_path() / "qutav-XXXXXX";
  // mkstemp opens with mode 0600.
  FileDescriptor descriptor(mkstemp(pattern.data()));
  if (!descriptor.IsOpen()) throw std::system_error(LastSystemError(), pattern);
  path_ = pattern;
  RemoveAtSignal(path_);
  std::error_code error = descriptor.Write(content);
  if (!error) error = descriptor.Close();
  if (!error) return;
  RemoveNow(path_);
  throw std::system_error(error, pattern);
}

TemporaryFile::~TemporaryFile() { RemoveNow(path_); }

}  // namespace qutav::host
