#include "platform/windows/FileReplacement.h"

#include <algorithm>
#include <atomic>
#include <vector>

#include "platform/Text.h"
#include "platform/windows/Handle.h"
#include "platform/windows/Path.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                  FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

DWORD AttributesOf(const std::u16string& path) {
  return GetFileAttributesW(Wide(NativePath(path)));
}

std::u16string FollowLink(const std::u16string& target) {
  const DWORD attributes = AttributesOf(target);
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    return FullPath(target);
  }
  const Handle file(CreateFileW(Wide(NativePath(target)), 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, 0, nullptr));
  if (!file.IsOpen()) return FullPath(target);
  const DWORD size = GetFinalPathNameByHandleW(file.Value(), nullptr, 0, 0);
  std::u16string real(size, u'\0');
  real.resize(GetFinalPathNameByHandleW(file.Value(), WideBuffer(real), size, 0));
  return real;
}

std::u16string NeighbourOf(const std::u16string& target) {
  static std::atomic<unsigned> counter{0};
  return target.substr(0, target.rfind(u'\\') + 1) + u".qutav." + ToDecimal(GetCurrentProcessId()) +
         u"." + ToDecimal(++counter);
}

// Opens a new file beside the target. One that a killed process has left there is passed by: its
// name can come again where process ids do.
HANDLE OpenNeighbour(const std::u16string& target, std::u16string& fresh) {
  constexpr int kTries = 100;
  for (int i = 0; i < kTries; ++i) {
    fresh = NeighbourOf(target);
    const HANDLE file = CreateFileW(Wide(NativePath(fresh)), GENERIC_WRITE | WRITE_DAC, 0, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) return file;
  }
  return INVALID_HANDLE_VALUE;
}

// Whether the target may be replaced; the thread's last error tells why not. A protected file is
// not one, though some systems would open it for somebody with every right.
bool IsWritableOrMissing(const std::u16string& target) {
  const DWORD attributes = AttributesOf(target);
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
  }
  const Handle file(CreateFileW(Wide(NativePath(target)), GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, 0, nullptr));
  return file.IsOpen() || GetLastError() == ERROR_FILE_NOT_FOUND;
}

void KeepAccessRights(const std::u16string& target, const std::u16string& fresh) {
  const std::u16string from = NativePath(target);
  DWORD size = 0;
  GetFileSecurityW(Wide(from), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> rights(size);
  if (size > 0 &&
      GetFileSecurityW(Wide(from), DACL_SECURITY_INFORMATION, rights.data(), size, &size) != 0) {
    SetFileSecurityW(Wide(NativePath(fresh)), DACL_SECURITY_INFORMATION, rights.data());
  }
}

void KeepWhatIsThere(const std::u16string& target, const std::u16string& fresh) {
  const DWORD attributes = AttributesOf(target);
  if (attributes == INVALID_FILE_ATTRIBUTES) return;
  KeepAccessRights(target, fresh);
  if ((attributes & kKeptAttributes) != 0) {
    SetFileAttributesW(Wide(NativePath(fresh)), attributes & kKeptAttributes);
  }
}

// Somebody who reads the file at this moment can keep it from being replaced, for the length of the
// reading.
DWORD PutInPlace(const std::u16string& fresh, const std::u16string& target) {
  constexpr int kTries = 50;
  constexpr DWORD kPause = 10;  // milliseconds
  DWORD error = ERROR_SUCCESS;
  for (int i = 0; i < kTries; ++i) {
    if (MoveFileExW(Wide(NativePath(fresh)), Wide(NativePath(target)),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
      return ERROR_SUCCESS;
    }
    error = GetLastError();
    if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) return error;
    Sleep(kPause);
  }
  return error;
}

}  // namespace

bool WriteAll(HANDLE file, std::string_view bytes) {
  constexpr std::size_t kLargestChunk = std::size_t{1} << 30;
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kLargestChunk));
    if (WriteFile(file, bytes.data(), size, &written, nullptr) == 0 || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

DWORD ReplaceFileWhole(const std::u16string& target, const std::function<bool(HANDLE)>& fill) {
  const std::u16string real = FollowLink(target);
  if (!IsWritableOrMissing(real)) return GetLastError();
  std::u16string fresh;
  Handle file(OpenNeighbour(real, fresh));
  if (!file.IsOpen()) return GetLastError();
  const bool filled = fill(file.Value()) && FlushFileBuffers(file.Value()) != 0 && file.Close();
  DWORD error = filled ? ERROR_SUCCESS : GetLastError();
  file.Close();
  if (filled) {
    KeepWhatIsThere(real, fresh);
    error = PutInPlace(fresh, real);
  }
  if (error != ERROR_SUCCESS) DeleteFileW(Wide(NativePath(fresh)));
  return error;
}

}  // namespace qutav
