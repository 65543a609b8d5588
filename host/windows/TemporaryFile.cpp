#include "host/TemporaryFile.h"

#include <string>
#include <system_error>

#include "host/windows/InterruptCleanup.h"
#include "host/windows/LastError.h"
#include "platform/windows/FileReplacement.h"
#include "platform/windows/Handle.h"
#include "platform/windows/System.h"
// behind the system's own header
#include <sddl.h>

namespace qutav::host {
namespace {

// Full access for the owner, none for anybody else, and nothing from the folder.
constexpr wchar_t kOwnerOnly[] = L"D:P(A;;FA;;;OW)";

class OwnerOnlyAccess {
 public:
  OwnerOnlyAccess() {
    ConvertStringSecurityDescriptorToSecurityDescriptorW(
        kOwnerOnly, SDDL_REVISION_1, &attributes_.lpSecurityDescriptor, nullptr);
  }
  ~OwnerOnlyAccess() { LocalFree(attributes_.lpSecurityDescriptor); }
  OwnerOnlyAccess(const OwnerOnlyAccess&) = delete;
  OwnerOnlyAccess& operator=(const OwnerOnlyAccess&) = delete;

  SECURITY_ATTRIBUTES* Attributes() { return &attributes_; }

 private:
  SECURITY_ATTRIBUTES attributes_{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
};

std::filesystem::path NameOf(unsigned number) {
  return std::filesystem::temp_directory_path() /
         ("qutav-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(number));
}

// Names are tried until one is free.
HANDLE OpenNew(std::filesystem::path& path) {
  OwnerOnlyAccess access;
  for (unsigned number = 1;; ++number) {
    path = NameOf(number);
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, access.Attributes(), CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY, nullptr);
    if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) return file;
  }
}

}  // namespace

TemporaryFile::TemporaryFile(std::string_view content) {
  Handle file(OpenNew(path_));
  if (!file.IsOpen()) throw std::system_error(LastSystemError(), path_.string());
  RemoveAtInterrupt(path_);
  if (WriteAll(file.Value(), content) && file.Close()) return;
  const std::error_code error = LastSystemError();
  file.Close();
  RemoveNow(path_);
  throw std::system_error(error, path_.string());
}

TemporaryFile::~TemporaryFile() { RemoveNow(path_); }

}  // namespace qutav::host
