#include "framework/windows/DialogWindow.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

#include "framework/windows/ControlHost.h"
#include "framework/windows/DialogTemplate.h"
#include "framework/windows/ModalLoop.h"
#include "framework/windows/OpenWindows.h"
#include "framework/windows/WindowScope.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;

RECT WorkAreaAt(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &info);
  return info.rcWork;
}

// Where a length begins that stands in the middle of another one, within bounds.
int Centred(int begin, int end, int length, int least, int most) {
  return std::max(std::min((begin + end - length) / 2, most - length), least);
}

class DialogWindow {
 public:
  DialogWindow(CDialog& dialog, ModalEvents& events)
      : dialog_(dialog), events_(events), owner_(OwnerFor(dialog.Parent())) {
    const DialogTemplate empty(kStyle, {});
    window_ = CreateDialogIndirectParamW(OurModule(), empty.Get(), owner_, &Procedure,
                                         reinterpret_cast<LPARAM>(this));
    if (window_ == nullptr) throw std::runtime_error("the system makes no window for a dialog");
    SetWindowTextW(window_, Wide(dialog_.Title()));
    controls_.emplace(window_, dialog_, GetDpiForWindow(window_));
    controls_->Update();
    FitToControls();
    CentreOnOwner();
  }
  ~DialogWindow() {
    controls_.reset();
    modal_.reset();
    DestroyWindow(window_);
  }
  DialogWindow(const DialogWindow&) = delete;
  DialogWindow& operator=(const DialogWindow&) = delete;

  void Run() {
    const DestroyedModel atEnd(dialog_);
    dialog_.Create();
    OpenWindows::Update();
    if (dialog_.IsPlaced()) MoveTo(dialog_.Left(), dialog_.Top());
    if (!dialog_.HasEnded()) Show();
    events_.OnShown();
    RunModalLoop(window_, dialog_,
                 [this](MSG& message) { return IsDialogMessageW(window_, &message) != FALSE; });
  }

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
      SetWindowLongPtrW(window, DWLP_USER, lParam);
      return FALSE;  // or the dialog would be the active window before it is shown
    }
    auto* self = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return self != nullptr && self->controls_ ? self->OnMessage(message, wParam, lParam) : FALSE;
  }

  INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CLOSE) {
      RunEvent([this] { dialog_.OnCancel(); });
      return TRUE;
    }
    if (message == WM_DESTROY) WakeModalLoop();
    if (message == WM_COMMAND && LOWORD(wParam) == IDOK) {  // Enter, where no button takes it
      RunEvent([this] { dialog_.OnOK(); });
      return TRUE;
    }
    if (message == WM_DPICHANGED) {
      OnDpiChanged(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return TRUE;
    }
    const INT_PTR answer = controls_->OnMessage(message, wParam, lParam).value_or(FALSE);
    if (message == WM_TIMER) events_.OnTick();
    return answer;
  }

  void OnDpiChanged(unsigned dpi, const RECT& suggested) {
    controls_->SetDpi(dpi);
    FitToControls();
    MoveTo(suggested.left, suggested.top);
  }

  void FitToControls() {
    const Size size = controls_->NaturalSize();
    RECT frame{0, 0, size.width, size.height};
    AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)), FALSE,
                             static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)),
                             controls_->Dpi());
    SetWindowPos(window_, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    controls_->Arrange(size);
  }

  // An owner at the edge of the screen, or smaller than the dialog, does not take it off the
  // screen.
  void CentreOnOwner() const {
    RECT over{};
    GetWindowRect(owner_ != nullptr ? owner_ : GetDesktopWindow(), &over);
    RECT own{};
    GetWindowRect(window_, &own);
    const RECT area = WorkAreaAt(owner_);
    MoveTo(Centred(over.left, over.right, own.right - own.left, area.left, area.right),
           Centred(over.top, over.bottom, own.bottom - own.top, area.top, area.bottom));
  }

  void MoveTo(int left, int top) const {
    SetWindowPos(window_, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

  // The focus goes the way of the Tab key: it selects a field's text, and Enter presses its button.
  void Show() const {
    ShowWindow(window_, SW_SHOW);
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(FirstFocus()), TRUE);
    UpdateWindow(window_);
  }

  // A dialog of buttons alone begins at its default one.
  HWND FirstFocus() const {
    HWND first = GetNextDlgTabItem(window_, nullptr, FALSE);
    HWND byEnter = GetDlgItem(window_, LOWORD(SendMessageW(window_, DM_GETDEFID, 0, 0)));
    const bool isButton = (SendMessageW(first, WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON) != 0;
    return isButton && byEnter != nullptr ? byEnter : first;
  }

  CDialog& dialog_;
  ModalEvents& events_;
  HWND owner_;
  std::optional<DisabledWindows> modal_{std::in_place};
  HWND window_ = nullptr;
  std::optional<ControlHost> controls_;
};

}  // namespace

int RunDialogWindow(CDialog& dialog, ModalEvents& events) {
  const WindowScope scope;
  DialogWindow(dialog, events).Run();
  return dialog.Result();
}

}  // namespace qutav
