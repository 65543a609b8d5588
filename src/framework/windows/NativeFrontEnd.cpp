#include "framework/windows/NativeFrontEnd.h"

#include "framework/scripted/ScriptedFrontEnd.h"
#include "framework/windows/FileDialogs.h"
#include "platform/FrontEnd.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"
// behind the system's own header
#include <shellapi.h>

namespace qutav {
namespace {

UINT IconFlag(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return MB_ICONINFORMATION;
    case MessageIcon::kWarning:
      return MB_ICONWARNING;
    case MessageIcon::kPlain:
      break;
  }
  return 0;
}

UINT ButtonsFlag(MessageButtons buttons) {
  return buttons == MessageButtons::kOkCancel ? MB_OKCANCEL : MB_OK;
}

BOOL CALLBACK TakeMainWindow(HWND window, LPARAM target) {
  if (GetWindow(window, GW_OWNER) != nullptr || !IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<HWND*>(target) = window;
  return FALSE;
}

Rectangle RectangleOf(HWND window) {
  RECT rectangle{};
  if (window != nullptr) GetWindowRect(window, &rectangle);
  return {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
}

// Messages and the choosers of files and folders are the system's own; dialogs and the sheet are
// run without a window.
class NativeFrontEnd final : public FrontEnd {
 public:
  WindowHandle FocusWindow() override { return GetFocus(); }

  WindowHandle MainWindow() override {
    HWND window = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeMainWindow, reinterpret_cast<LPARAM>(&window));
    return window;
  }

  int ShowMessage(const MessageBoxRequest& request) override {
    const int pressed =
        MessageBoxW(static_cast<HWND>(request.owner), Wide(request.text), Wide(request.title),
                    IconFlag(request.icon) | ButtonsFlag(request.buttons));
    return pressed == IDOK ? kIdOk : kIdCancel;
  }

  int RunModal(CDialog& dialog) override { return EnvironmentFrontEnd().RunModal(dialog); }

  int RunModal(CPropertySheet& sheet) override { return EnvironmentFrontEnd().RunModal(sheet); }

  std::optional<std::u16string> ChooseFile(const FileDialogRequest& request) override {
    return ShowFileDialog(request);
  }
  std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request) override {
    return ShowFolderDialog(request);
  }
  void OpenLink(const std::u16string& url) override {
    ShellExecuteW(nullptr, L"open", Wide(url), nullptr, nullptr, SW_SHOWNORMAL);
  }
  int TextWidth(const Control& control, const std::u16string& text) override {
    return EnvironmentFrontEnd().TextWidth(control, text);
  }
  int AverageCharacterWidth(const Control& control) override {
    return EnvironmentFrontEnd().AverageCharacterWidth(control);
  }
  void Repaint(CDialog&) override {}

  Rectangle ActiveWindowRectangle() override { return RectangleOf(GetActiveWindow()); }

  Rectangle DesktopRectangle() override { return RectangleOf(GetDesktopWindow()); }

  Rectangle DialogRectangle(const CDialog& dialog) override {
    return EnvironmentFrontEnd().DialogRectangle(dialog);
  }
};

}  // namespace

FrontEnd& TheNativeFrontEnd() {
  static NativeFrontEnd frontEnd;
  return frontEnd;
}

}  // namespace qutav
