// What shows the system's messages, dialogs and sheets to its user.
#pragma once

#include <cstdint>
#include <string>

namespace qutav {

class CDialog;
class CPropertySheet;

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
  /// The rectangle of the active window and of the desktop, in pixels.
  virtual Rectangle ActiveWindowRectangle() = 0;
  virtual Rectangle DesktopRectangle() = 0;
  /// The size that a dialog has on the screen before it is placed.
  virtual Rectangle DialogRectangle(const CDialog& dialog) = 0;
};

}  // namespace qutav
