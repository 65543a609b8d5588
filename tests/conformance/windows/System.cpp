#include "conformance/System.h"

#include <algorithm>
#include <iostream>
#include <system_error>

#include "EnvironmentVariable.h"
#include "platform/Text.h"
#include "platform/windows/System.h"
// behind the system's own header
#include <shlobj.h>

namespace qutav::test {
namespace {

namespace fs = std::filesystem;

fs::path ProductFolder() {
  wchar_t folder[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_PROGRAM_FILES_COMMON, nullptr, SHGFP_TYPE_CURRENT, folder);
  return fs::path(folder) / "Zenvoka";
}

template <typename Part>
const Part* PartAt(HMODULE module, DWORD offset) {
  return reinterpret_cast<const Part*>(reinterpret_cast<const char*>(module) + offset);
}

}  // namespace

void* LoadLibraryFile(const fs::path& file) {
  const HMODULE library = LoadLibraryW(fs::absolute(file).make_preferred().c_str());
  if (library == nullptr) {
    std::cerr << std::system_category().message(static_cast<int>(GetLastError())) << std::endl;
  }
  return library;
}

void* ExportOf(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

// Read from the loaded file's own table.
std::vector<std::string> ExportedNames(const fs::path& file) {
  const auto module = static_cast<HMODULE>(LoadLibraryFile(file));
  const auto* head = PartAt<IMAGE_DOS_HEADER>(module, 0);
  const auto* headers = PartAt<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(head->e_lfanew));
  const auto& entry = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
  const auto* exports = PartAt<IMAGE_EXPORT_DIRECTORY>(module, entry.VirtualAddress);
  const auto* offsets = PartAt<DWORD>(module, exports->AddressOfNames);
  std::vector<std::string> names;
  for (DWORD i = 0; i < exports->NumberOfNames; ++i) {
    names.emplace_back(PartAt<char>(module, offsets[i]));
  }
  std::sort(names.begin(), names.end());
  return names;
}

void InstallTool(const fs::path& folder) {
  const fs::path bin = ProductFolder() / "Zenvoka Kestrow 2020/jre/bin";
  fs::create_directories(bin);
  fs::copy_file(FAKE_TOOL, bin / "java.exe", fs::copy_options::overwrite_existing);
  PutEnvironment("QUTAV_FAKE_TOOL_FOLDER", folder.string());
}

void RemoveTool() { fs::remove_all(ProductFolder()); }

void InstallAdb(const fs::path& sdk) {
  const fs::path bin = sdk / "lib/android/bin";
  fs::create_directories(bin);
  fs::copy_file(FAKE_TOOL, bin / "adb.exe");
}

void KeepInFolder(const fs::path& folder) { PutEnvironment("TMP", folder.string()); }

std::u16string PathOfUri(const std::u16string& uri) {
  return ReplaceAll(ReplaceAll(uri.substr(8), u"%20", u" "), u"/", u"\\");
}

}  // namespace qutav::test
