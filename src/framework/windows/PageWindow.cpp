#include "framework/windows/PageWindow.h"

#include <utility>

#include "framework/windows/WindowScope.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

constexpr DWORD kStyle = WS_CHILD | WS_DISABLED | WS_CAPTION | DS_CONTROL;
constexpr UINT kGoOn = 1;

static_assert(kPageHasHelp == PSP_HASHELP);
static_assert(kPageUsesCallback == PSP_USECALLBACK);

}  // namespace

PageWindow::PageWindow(CPropertyPage& page, unsigned dpi, const Size& size,
                       std::function<void()> onActivated)
    : page_(page), dpi_(dpi), template_(kStyle, size), onActivated_(std::move(onActivated)) {}

PROPSHEETPAGEW PageWindow::Description() {
  PROPSHEETPAGEW description{};
  description.dwSize = sizeof description;
  description.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE | page_.flags;
  description.hInstance = OurModule();
  description.pResource = template_.Get();
  description.pszTitle = Wide(page_.Title());
  description.pfnDlgProc = &Procedure;
  description.pfnCallback = &OnLifecycle;
  description.lParam = reinterpret_cast<LPARAM>(this);
  return description;
}

UINT CALLBACK PageWindow::OnLifecycle(HWND, UINT, PROPSHEETPAGEW*) { return kGoOn; }

INT_PTR CALLBACK PageWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    const auto* description = reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
    SetWindowLongPtrW(window, DWLP_USER, description->lParam);
    reinterpret_cast<PageWindow*>(description->lParam)->OnInitDialog(window);
    return TRUE;
  }
  auto* self = reinterpret_cast<PageWindow*>(GetWindowLongPtrW(window, DWLP_USER));
  return self != nullptr && self->controls_ ? self->OnMessage(message, wParam, lParam) : FALSE;
}

void PageWindow::OnInitDialog(HWND window) {
  dpi_ = GetDpiForWindow(window);
  controls_.emplace(window, page_, dpi_);
  controls_->Update();
  FillWindow();
}

void PageWindow::FillWindow() {
  RECT client{};
  GetClientRect(controls_->Window(), &client);
  controls_->Arrange({client.right, client.bottom});
}

INT_PTR PageWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      FillWindow();
      return TRUE;
    case WM_DPICHANGED_AFTERPARENT:
      dpi_ = GetDpiForWindow(controls_->Window());
      controls_->SetDpi(dpi_);
      FillWindow();
      return TRUE;
    case WM_DESTROY:
      controls_.reset();
      return FALSE;
    // A field of several lines takes Esc and Tab itself, and knows no more than its page.
    case WM_CLOSE:
      PostMessageW(GetParent(controls_->Window()), WM_CLOSE, 0, 0);
      return TRUE;
    case WM_NEXTDLGCTL:
      if (lParam != 0) return FALSE;
      SendMessageW(GetParent(controls_->Window()), WM_NEXTDLGCTL, wParam, 0);
      return TRUE;
    default:
      break;
  }
  if (const auto answer = controls_->OnMessage(message, wParam, lParam)) return *answer;
  if (message == WM_NOTIFY) return OnSheetNotification(*reinterpret_cast<const NMHDR*>(lParam));
  return FALSE;
}

INT_PTR PageWindow::OnSheetNotification(const NMHDR& notification) {
  if (notification.code != static_cast<UINT>(PSN_SETACTIVE)) return FALSE;
  onActivated_();
  SetWindowLongPtrW(controls_->Window(), DWLP_MSGRESULT, 0);
  return TRUE;
}

}  // namespace qutav
