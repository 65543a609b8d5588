#include "framework/windows/NativeFrontEnd.h"

#include <functional>

#include "framework/windows/DialogWindow.h"
#include "framework/windows/FileDialogs.h"
#include "framework/windows/ModalLoop.h"
#include "framework/windows/OpenWindows.h"
#include "framework/windows/PropertySheetWindow.h"
#include "framework/windows/WindowScope.h"
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

Rectangle RectangleOf(HWND window) {
  RECT rectangle{};
  if (window != nullptr) GetWindowRect(window, &rectangle);
  return {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
}

// In the font of a control's window; before it has one, in that which it will have.
int Measure(const Control& control, const std::function<int(const FontMeasure&)>& measure) {
  if (const ControlBinder* binder = OpenWindows::BinderOf(control)) {
    const LRESULT font = SendMessageW(binder->Window(), WM_GETFONT, 0, 0);
    return measure({reinterpret_cast<HFONT>(font), GetDpiForWindow(binder->Window())});
  }
  HWND active = GetActiveWindow();
  const unsigned dpi = active == nullptr ? GetDpiForSystem() : GetDpiForWindow(active);
  const DialogFont font(dpi);
  return measure({font.Handle(), dpi});
}

}  // namespace

WindowHandle NativeFrontEnd::FocusWindow() { return GetFocus(); }

WindowHandle NativeFrontEnd::MainWindow() { return MainWindowOfThread(); }

// Without an owner, while the user is in another program, it still takes input from all windows.
int NativeFrontEnd::ShowMessage(const MessageBoxRequest& request) {
  const WindowScope scope;
  const UINT modality = request.owner == nullptr ? MB_TASKMODAL : MB_APPLMODAL;
  const int pressed =
      MessageBoxW(static_cast<HWND>(request.owner), Wide(request.text), Wide(request.title),
                  IconFlag(request.icon) | ButtonsFlag(request.buttons) | modality);
  return pressed == IDOK ? kIdOk : kIdCancel;
}

int NativeFrontEnd::RunModal(CDialog& dialog) {
  ModalEvents nobody;
  return RunDialogWindow(dialog, nobody);
}

int NativeFrontEnd::RunModal(CPropertySheet& sheet) {
  ModalEvents nobody;
  return RunPropertySheetWindow(sheet, nobody);
}

std::optional<std::u16string> NativeFrontEnd::ChooseFile(const FileDialogRequest& request) {
  const WindowScope scope;
  return ShowFileDialog(request);
}

std::optional<std::u16string> NativeFrontEnd::ChooseFolder(const FolderDialogRequest& request) {
  const WindowScope scope;
  return ShowFolderDialog(request);
}

void NativeFrontEnd::OpenLink(const std::u16string& url) {
  ShellExecuteW(nullptr, L"open", Wide(url), nullptr, nullptr, SW_SHOWNORMAL);
}

int NativeFrontEnd::TextWidth(const Control& control, const std::u16string& text) {
  return Measure(control, [&](const FontMeasure& font) { return font.TextWidth(text); });
}

int NativeFrontEnd::AverageCharacterWidth(const Control& control) {
  return Measure(control, std::mem_fn(&FontMeasure::AverageCharacterWidth));
}

void NativeFrontEnd::CallHost(const std::function<void()>& call) {
  const HostScope scope;
  call();
}

void NativeFrontEnd::Repaint(CDialog& dialog) {
  OpenWindows::Update();
  if (const ControlHost* host = OpenWindows::HostOf(dialog)) {
    RedrawWindow(host->Window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  }
}

Rectangle NativeFrontEnd::ActiveWindowRectangle() { return RectangleOf(GetActiveWindow()); }

Rectangle NativeFrontEnd::DesktopRectangle() { return RectangleOf(GetDesktopWindow()); }

Rectangle NativeFrontEnd::DialogRectangle(const CDialog& dialog) {
  const ControlHost* host = OpenWindows::HostOf(dialog);
  return RectangleOf(host == nullptr ? nullptr : host->Window());
}

}  // namespace qutav
