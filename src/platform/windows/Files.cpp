#include "platform/Files.h"

#include <algorithm>

#include "platform/windows/FileReplacement.h"
#include "platform/windows/Handle.h"
#include "platform/windows/Path.h"
#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

bool EndsInSeparator(const std::u16string& path) {
  return path.ends_with(u'\\') || path.ends_with(u'/');
}

std::u16string FolderOf(const std::u16string& path) {
  const std::u16string full = FullPath(path);
  return full.substr(0, full.rfind(u'\\') + 1);
}

bool IsDiskFile(HANDLE file) {
  FILE_ATTRIBUTE_TAG_INFO info{};
  return GetFileType(file) == FILE_TYPE_DISK &&
         GetFileInformationByHandleEx(file, FileAttributeTagInfo, &info, sizeof info) != 0 &&
         (info.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::optional<std::string> ReadWhole(HANDLE file) {
  LARGE_INTEGER size{};
  if (GetFileSizeEx(file, &size) == 0) return {};
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    constexpr std::size_t kLargestChunk = std::size_t{1} << 30;
    const auto wanted = static_cast<DWORD>(std::min(bytes.size() - filled, kLargestChunk));
    DWORD count = 0;
    if (ReadFile(file, bytes.data() + filled, wanted, &count, nullptr) == 0) return {};
    if (count == 0) break;  // somebody has made it shorter
    filled += count;
  }
  bytes.resize(filled);
  return bytes;
}

bool IsBareDrive(const std::u16string& path) { return path.size() == 2 && path[1] == u':'; }

// A search would take it for the folder that is current on the drive.
std::optional<FoundFile> FindRoot(const std::u16string& drive) {
  if (GetFileAttributesW(Wide(drive + u"\\")) == INVALID_FILE_ATTRIBUTES) return {};
  return FoundFile{drive, {}};
}

class WindowsFiles final : public Files {
 public:
  std::optional<FoundFile> Find(const std::u16string& path) override {
    if (path.empty() || EndsInSeparator(path)) return {};
    if (IsBareDrive(path)) return FindRoot(path);
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW(Wide(NativePath(path)), &data);
    if (search == INVALID_HANDLE_VALUE) return {};
    FindClose(search);
    return FoundFile{FromWide(data.cFileName), FolderOf(path)};
  }

  bool Copy(const std::u16string& from, const std::u16string& to) override {
    return CopyFileW(Wide(NativePath(from)), Wide(NativePath(to)), FALSE) != 0;
  }

  bool Delete(const std::u16string& path) override {
    return DeleteFileW(Wide(NativePath(path))) != 0;
  }

  bool CreateFolder(const std::u16string& path) override {
    return CreateDirectoryW(Wide(NativePath(path)), nullptr) != 0;
  }

  bool RemoveFolder(const std::u16string& path) override {
    return RemoveDirectoryW(Wide(NativePath(path))) != 0;
  }

  // Others may go on with the file meanwhile, even replace it.
  std::optional<std::string> Read(const std::u16string& path) override {
    const Handle file(CreateFileW(Wide(NativePath(path)), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file.IsOpen() || !IsDiskFile(file.Value())) return {};
    return ReadWhole(file.Value());
  }

  bool Write(const std::u16string& path, std::string_view bytes) override {
    return ReplaceFileWhole(path, [&](HANDLE file) { return WriteAll(file, bytes); }) ==
           ERROR_SUCCESS;
  }

  bool IsRooted(const std::u16string& path) const override { return path.find(u':') != path.npos; }

  std::string_view LineEnd() const override { return "\r\n"; }
};

}  // namespace

Files& SystemFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace qutav
