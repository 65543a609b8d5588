#include "host/ProcessState.h"

#include <stdlib.h>

#include <memory>
#include <system_error>

#include "host/NativePath.h"
#include "host/TextEncoding.h"
#include "platform/windows/Handle.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"
// behind the system's own header
#include <shellapi.h>

namespace qutav::host {

std::filesystem::path ExecutableFile() {
  std::u16string name(MAX_PATH, u'\0');
  DWORD length = 0;
  while ((length = GetModuleFileNameW(nullptr, WideBuffer(name),
                                      static_cast<DWORD>(name.size()))) == name.size()) {
    name.resize(2 * name.size());
  }
  name.resize(length);
  return name;
}

// The narrow ones have lost what the code page lacks.
std::vector<std::string> ProcessArguments(int, const char* const*) {
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> wide(
      CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
  std::vector<std::string> arguments;
  for (int i = 0; i < count; ++i) arguments.push_back(ToUtf8(FromWide(wide.get()[i])));
  return arguments;
}

// Nobody can keep a child's exit code from its parent here.
void ListenToChildren() {}

void SetEnvironment(const std::string& name, const std::string& value) {
  const int error = _wputenv_s(Wide(FromUtf8(name)), Wide(FromUtf8(value)));
  if (error != 0) throw std::system_error(error, std::generic_category(), name);
}

void ClearEnvironment(const std::string& name) { _wputenv_s(Wide(FromUtf8(name)), L""); }

bool IsReadableFile(const std::filesystem::path& file) {
  std::error_code ignored;
  if (std::filesystem::is_directory(file, ignored)) return false;
  return Handle(CreateFileW(file.c_str(), GENERIC_READ,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, 0, nullptr))
      .IsOpen();
}

}  // namespace qutav::host
