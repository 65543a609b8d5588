#include "windows/ShownDialogs.h"

#include "framework/CPropertySheet.h"
#include "framework/windows/OpenWindows.h"
#include "windows/UserInput.h"

namespace qutav::test {

NativeGround::NativeGround() {
  TheServices().frontEnd = &frontEnd_;
  SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
}

HWND WindowOf(const Control& control) { return OpenWindows::BinderOf(control)->Window(); }

HWND WindowOf(const CDialog& dialog) { return OpenWindows::HostOf(dialog)->Window(); }

HWND CaptionOf(const Control& control) { return OpenWindows::BinderOf(control)->CaptionWindow(); }

int Use(CDialog& dialog, const ModalUser::Steps& steps) {
  const ModalUser user(AnyDialog(), steps);
  auto* sheet = dynamic_cast<CPropertySheet*>(&dialog);
  return sheet != nullptr ? sheet->DoModal() : dialog.DoModal();
}

int LookAt(CDialog& dialog, ModalUser::Steps steps) {
  steps.push_back(Close);
  return Use(dialog, steps);
}

int LookAt(CDialog& dialog, const std::function<void()>& look) {
  return LookAt(dialog, ModalUser::Steps{[&](HWND) { look(); }});
}

ModalUser::Steps Filling(const std::vector<std::u16string>& texts) {
  ModalUser::Steps steps;
  for (const std::u16string& text : texts) {
    steps.push_back([text](HWND) {
      TypeText(text);
      Strike(VK_TAB);
    });
  }
  return steps;
}

void Close(HWND window) { PostMessageW(window, WM_CLOSE, 0, 0); }

void Click(const Control& control) { SendMessageW(WindowOf(control), BM_CLICK, 0, 0); }

RECT PlaceOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return place;
}

DWORD StyleOf(HWND window) { return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)); }

}  // namespace qutav::test
