// What shows the system's messages, dialogs and sheets to its user.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace qutav {

class CDialog;
class CPropertySheet;
struct Control;

/// A window of the host or of ours; opaque here.
using WindowHandle = void*;

enum class MessageIcon { kPlain, kInformation, kWarning };
enum class MessageButtons { kOk, kOkCancel };

/// Results of message boxes and dialogs, with the values of IDOK and IDCANCEL.
inline constexpr int kIdOk = 1;
inline constexpr int kIdCancel = 2;

struct MessageBoxRequest {
  WindowHandle owner = nullptr;
  std::u16string title;
  std::u16string text;
  MessageIcon icon = MessageIcon::kPlain;
  MessageButtons buttons = MessageButtons::kOk;
};

struct Rectangle {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
};

enum class FileDialogKind { kOpen, kSave };

/// What a file dialog shows (`GetOpenFileNameW`, `GetSaveFileNameW`). The file to open must exist.
struct FileDialogRequest {
  WindowHandle owner = nullptr;
  FileDialogKind kind = FileDialogKind::kOpen;
  std::u16string title;  ///< empty for the system's own
  /// Pairs of a description and patterns, each part with "|" behind it, a further "|" at the end.
  std::u16string filter;
  std::u16string defaultExtension;
  std::u16string startName;
  std::u16string startFolder;
};

/// What a folder dialog shows (`SHBrowseForFolderW`).
struct FolderDialogRequest {
  WindowHandle owner = nullptr;
  std::u16string title;
  unsigned flags = 0;  ///< the system's BIF_ flags
};

class FrontEnd {
 public:
  virtual ~FrontEnd() = default;
  /// The window that has the focus (`GetFocus`), null without one.
  virtual WindowHandle FocusWindow() = 0;
  /// The main window of the calling thread, null without one.
  virtual WindowHandle MainWindow() = 0;
  /// Shows a message box (`MessageBoxW`) and returns `kIdOk` or `kIdCancel`.
  virtual int ShowMessage(const MessageBoxRequest& request) = 0;
  /// Runs a dialog's modal loop until `CDialog::EndDialog`; returns the dialog's result.
  virtual int RunModal(CDialog& dialog) = 0;
  /// The same for a property sheet.
  virtual int RunModal(CPropertySheet& sheet) = 0;
  /// Lets the user choose a file; its full path with backslashes, nothing when it was cancelled.
  virtual std::optional<std::u16string> ChooseFile(const FileDialogRequest& request) = 0;
  /// The same for a folder. An empty text: one was chosen that has no path.
  virtual std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request) = 0;
  /// Opens a link in the default browser (`ShellExecuteW`, "open").
  virtual void OpenLink(const std::u16string& url) = 0;
  /// The width of a text in a control's font, and of that font's average character, in pixels.
  virtual int TextWidth(const Control& control, const std::u16string& text) = 0;
  virtual int AverageCharacterWidth(const Control& control) = 0;
  /// Makes a call in which the host may show windows of its own, also from within a dialog of ours.
  virtual void CallHost(const std::function<void()>& call) { call(); }
  /// Brings a dialog's controls to the screen as they stand now (`UpdateWindow`).
  virtual void Repaint(CDialog& dialog) = 0;
  /// The rectangle of the active window and of the desktop, in pixels.
  virtual Rectangle ActiveWindowRectangle() = 0;
  virtual Rectangle DesktopRectangle() = 0;
  /// The size that a dialog has on the screen before it is placed.
  virtual Rectangle DialogRectangle(const CDialog& dialog) = 0;
};

}  // namespace qutav
