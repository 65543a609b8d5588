#include "framework/windows/ModalLoop.h"

#include "framework/windows/OpenWindows.h"
// behind the system's own header
#include <commctrl.h>

namespace qutav {
namespace {

BOOL CALLBACK TakeMainWindow(HWND window, LPARAM target) {
  if (GetWindow(window, GW_OWNER) != nullptr || !IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<HWND*>(target) = window;
  return FALSE;
}

BOOL CALLBACK Disable(HWND window, LPARAM list) {
  if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  EnableWindow(window, FALSE);
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

void Cancel(CDialog& dialog) {
  CDialog::Dispatch([&] { dialog.OnCancel(); });
  if (!dialog.HasEnded()) dialog.EndDialog(kIdCancel);
}

bool IsPressable(HWND window) {
  wchar_t name[8] = {};
  GetClassNameW(window, name, 8);
  const LONG kind = GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK;
  return lstrcmpiW(name, WC_BUTTONW) == 0 &&
         (kind == BS_PUSHBUTTON || kind == BS_DEFPUSHBUTTON || kind == BS_OWNERDRAW);
}

// Some systems give Enter to a sheet's default button though a button of a page has the focus, and
// all of them when that button draws itself.
bool PressButtonByEnter(const MSG& message) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_RETURN) return false;
  if (!IsPressable(message.hwnd)) return false;
  SendMessageW(message.hwnd, BM_CLICK, 0, 0);
  return true;
}

void Deliver(MSG& message, const KeyFilter& isDialogKey) {
  OpenWindows::PreTranslate(message);
  if (PressButtonByEnter(message) || isDialogKey(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

HWND MainWindowOfThread() {
  HWND window = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), &TakeMainWindow, reinterpret_cast<LPARAM>(&window));
  return window;
}

HWND OwnerFor(WindowHandle parent) {
  HWND window = static_cast<HWND>(parent);
  if (window == nullptr) window = GetActiveWindow();
  if (window == nullptr) window = MainWindowOfThread();
  return window == nullptr ? nullptr : GetAncestor(window, GA_ROOT);
}

DisabledWindows::DisabledWindows() {
  EnumThreadWindows(GetCurrentThreadId(), &Disable, reinterpret_cast<LPARAM>(&windows_));
}

DisabledWindows::~DisabledWindows() {
  for (HWND window : windows_) EnableWindow(window, TRUE);
}

void RunModalLoop(HWND window, CDialog& dialog, const KeyFilter& isDialogKey) {
  while (!dialog.HasEnded()) {
    MSG message{};
    // A window that is gone may have been the last that had anything to say.
    const BOOL got = IsWindow(window) != FALSE ? GetMessageW(&message, nullptr, 0, 0) : -1;
    if (got > 0) {
      Deliver(message, isDialogKey);
    } else {
      Cancel(dialog);
    }
    if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
  }
}

void WakeModalLoop() { PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0); }

}  // namespace qutav
