#include "platform/Folders.h"

#include <shlobj.h>

#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

using VersionQuery = LONG(WINAPI*)(OSVERSIONINFOW*);

class WindowsFolders final : public Folders {
 public:
  std::u16string HostExecutable() override {
    // The call tells of no length; a name that fills the buffer may have been cut.
    std::u16string name(MAX_PATH, u'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, WideBuffer(name),
                                        static_cast<DWORD>(name.size()))) == name.size()) {
      name.resize(2 * name.size());
    }
    name.resize(length);
    return name;
  }

  std::u16string Temporary() override {
    wchar_t folder[MAX_PATH + 1] = {};
    const DWORD length = GetTempPathW(MAX_PATH + 1, folder);
    return length > MAX_PATH ? std::u16string() : FromWide({folder, length});
  }

  std::u16string CommonProgramFiles() override {
    wchar_t folder[MAX_PATH] = {};
    if (SHGetFolderPathW(nullptr, CSIDL_PROGRAM_FILES_COMMON, nullptr, SHGFP_TYPE_CURRENT,
                         folder) != S_OK) {
      return {};
    }
    return FromWide(folder);
  }

  // `GetVersionExW` tells an old version to a program whose manifest does not name the new one.
  unsigned MajorVersion() override {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    const auto query = reinterpret_cast<VersionQuery>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
    return query != nullptr && query(&version) == 0 ? version.dwMajorVersion : 0;
  }
};

}  // namespace

Folders& SystemFolders() {
  static WindowsFolders folders;
  return folders;
}

}  // namespace qutav
