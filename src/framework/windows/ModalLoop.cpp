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
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0 || IsWindow(window) == FALSE) Cancel(dialog);
    if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
    if (got > 0) Deliver(message, isDialogKey);
  }
}

void WakeModalLoop() { PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0); }

}  // namespace qutav
