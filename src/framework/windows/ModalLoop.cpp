#include "framework/windows/ModalLoop.h"

#include "framework/windows/OpenWindows.h"

namespace qutav {
namespace {

void Cancel(CDialog& dialog) {
  CDialog::Dispatch([&] { dialog.OnCancel(); });
  if (!dialog.HasEnded()) dialog.EndDialog(kIdCancel);
}

void Deliver(MSG& message, const KeyFilter& isDialogKey) {
  OpenWindows::PreTranslate(message);
  if (isDialogKey(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

DisabledOwner::DisabledOwner(HWND owner)
    : owner_(owner), disabled_(owner != nullptr && IsWindowEnabled(owner) != FALSE) {
  if (disabled_) EnableWindow(owner_, FALSE);
}

DisabledOwner::~DisabledOwner() {
  if (disabled_) EnableWindow(owner_, TRUE);
}

HWND OwnerFor(WindowHandle parent) {
  HWND window = static_cast<HWND>(parent);
  if (window == nullptr) window = GetActiveWindow();
  return window == nullptr ? nullptr : GetAncestor(window, GA_ROOT);
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
