#include "host/ProcessState.h"

#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <system_error>

#include "host/posix/FileDescriptor.h"

namespace qutav::host {

std::filesystem::path ExecutableFile() { return std::filesystem::read_symlink("/proc/self/exe"); }

std::vector<std::string> ProcessArguments(int count, const char* const* arguments) {
  return {arguments, arguments + count};
}

void ListenToChildren() { signal(SIGCHLD, SIG_DFL); }

void SetEnvironment(const std::string& name, const std::string& value) {
  if (setenv(name.c_str(), value.c_str(), 1) != 0) throw std::system_error(LastSystemError(), name);
}

void ClearEnvironment(const std::string& name) { unsetenv(name.c_str()); }

bool IsReadableFile(const std::filesystem::path& file) {
  std::error_code ignored;
  return !std::filesystem::is_directory(file, ignored) && access(file.c_str(), R_OK) == 0;
}

}  // namespace qutav::host
