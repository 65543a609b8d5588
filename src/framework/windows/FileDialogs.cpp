#include "framework/windows/FileDialogs.h"

#include <algorithm>
#include <memory>

#include "platform/windows/System.h"
#include "platform/windows/Wide.h"
// behind the system's own header
#include <cderr.h>
#include <commdlg.h>
#include <shlobj.h>

namespace qutav {
namespace {

// The longest path that the system knows, with its zero.
constexpr std::size_t kPathUnits = 32768;

// A dialog for saving takes no notice of the flag that the file must exist, but of the one for its
// folder, which that implies.
constexpr DWORD kFileDialogFlags =
    OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;

// The flag against a change of the current directory has no effect on a dialog that opens files.
class CurrentDirectoryGuard {
 public:
  CurrentDirectoryGuard() { GetCurrentDirectoryW(kPathUnits, WideBuffer(directory_)); }
  ~CurrentDirectoryGuard() { SetCurrentDirectoryW(Wide(directory_)); }
  CurrentDirectoryGuard(const CurrentDirectoryGuard&) = delete;
  CurrentDirectoryGuard& operator=(const CurrentDirectoryGuard&) = delete;

 private:
  std::u16string directory_ = std::u16string(kPathUnits, u'\0');
};

// The folder dialog of the new style needs OLE on its thread.
class OleSession {
 public:
  OleSession() : running_(SUCCEEDED(OleInitialize(nullptr))) {}
  ~OleSession() {
    if (running_) OleUninitialize();
  }
  OleSession(const OleSession&) = delete;
  OleSession& operator=(const OleSession&) = delete;

 private:
  bool running_;
};

struct ShellMemory {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};
using ItemList = std::unique_ptr<ITEMIDLIST, ShellMemory>;

// Each part ends in a zero, and the list in one more: the text's own.
std::u16string ZeroSeparated(std::u16string filter) {
  std::replace(filter.begin(), filter.end(), u'|', u'\0');
  return filter;
}

const wchar_t* WideOrNull(const std::u16string& text) {
  return text.empty() ? nullptr : Wide(text);
}

std::u16string UpToZero(const std::u16string& buffer) { return buffer.c_str(); }

std::u16string PathOf(const ITEMIDLIST& item) {
  std::u16string path(kPathUnits, u'\0');
  if (!SHGetPathFromIDListEx(&item, WideBuffer(path), kPathUnits, GPFIDL_DEFAULT)) return {};
  return UpToZero(path);
}

// A start name that no file can have would keep the dialog from opening.
bool ShowWithoutName(decltype(&GetSaveFileNameW) show, OPENFILENAMEW& dialog) {
  *dialog.lpstrFile = L'\0';
  return show(&dialog) != FALSE;
}

}  // namespace

std::optional<std::u16string> ShowFileDialog(const FileDialogRequest& request) {
  const CurrentDirectoryGuard guard;
  const std::u16string filter = ZeroSeparated(request.filter);
  std::u16string path = request.startName;
  path.resize(kPathUnits);
  path.back() = u'\0';
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = static_cast<HWND>(request.owner);
  dialog.lpstrFilter = WideOrNull(filter);
  dialog.lpstrFile = WideBuffer(path);
  dialog.nMaxFile = kPathUnits;
  dialog.lpstrInitialDir = WideOrNull(request.startFolder);
  dialog.lpstrTitle = WideOrNull(request.title);
  dialog.lpstrDefExt = WideOrNull(request.defaultExtension);
  dialog.Flags = kFileDialogFlags;
  const auto show = request.kind == FileDialogKind::kSave ? GetSaveFileNameW : GetOpenFileNameW;
  if (!show(&dialog) &&
      !(CommDlgExtendedError() == FNERR_INVALIDFILENAME && ShowWithoutName(show, dialog))) {
    return {};
  }
  return UpToZero(path);
}

std::optional<std::u16string> ShowFolderDialog(const FolderDialogRequest& request) {
  const OleSession ole;
  wchar_t displayName[MAX_PATH] = {};
  BROWSEINFOW dialog{};
  dialog.hwndOwner = static_cast<HWND>(request.owner);
  dialog.pszDisplayName = displayName;
  dialog.lpszTitle = Wide(request.title);
  dialog.ulFlags = request.flags;
  const ItemList chosen(SHBrowseForFolderW(&dialog));
  if (chosen == nullptr) return {};
  return PathOf(*chosen);
}

}  // namespace qutav
