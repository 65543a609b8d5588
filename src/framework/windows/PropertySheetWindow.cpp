#include "framework/windows/PropertySheetWindow.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "framework/windows/ButtonRow.h"
#include "framework/windows/ModalLoop.h"
#include "framework/windows/OpenWindows.h"
#include "framework/windows/PageWindow.h"
#include "framework/windows/WindowScope.h"
#include "framework/windows/WindowText.h"
#include "platform/windows/Wide.h"

// behind the system's own header
#include <shellscalingapi.h>

namespace qutav {
namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr UINT kPlacePage = WM_APP + 1;  // behind what the system does at a turn

Rectangle FromRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

// The owner itself may be drawn at another one and stretched.
unsigned DpiOfMonitor(HWND owner) {
  UINT x = 0;
  UINT y = 0;
  const HMONITOR monitor = MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY);
  return SUCCEEDED(GetDpiForMonitor(monitor, MDT_EFFECTIVE_DPI, &x, &y)) ? x : GetDpiForSystem();
}

// The sheet's own buttons: those that the system made, and what the model puts beside them.
class SheetControls final : public ControlHost {
 public:
  using ControlHost::ControlHost;

 private:
  std::unique_ptr<ControlBinder> Bind(Control& control, const WindowPlace& place) override {
    auto& button = dynamic_cast<Button&>(control);
    if (HWND made = GetDlgItem(Window(), button.commandId)) return Adopt(button, made);
    auto binder = MakeBinder(button, {place.parent, button.commandId, place.dpi});
    binder->SetFont(static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT)), place.dpi);
    binder->Place({&control, button.place, {}});
    return binder;
  }

  // Its texts are ours; but the one that the sheet mends is left to it.
  static std::unique_ptr<ControlBinder> Adopt(Button& button, HWND made) {
    if (button.commandId == kIdHelp && WindowText(made) == u"?") button.text = u"?";
    return AdoptButton(button, made);
  }
};

class PropertySheetWindow final : public SheetWindow {
 public:
  PropertySheetWindow(CPropertySheet& sheet, ModalEvents& events)
      : sheet_(sheet), events_(events), owner_(OwnerFor(nullptr)), dpi_(DpiOfMonitor(owner_)) {
    MakePages();
    MakeWindow();
    SetWindowSubclass(window_, &Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
    controls_.emplace(window_, sheet_, GetDpiForWindow(window_));
    controls_->Update();
    sheet_.Attach(this);
  }
  ~PropertySheetWindow() override {
    sheet_.Attach(nullptr);
    controls_.reset();
    RemoveWindowSubclass(window_, &Procedure, kSubclass);
    modal_.reset();
    DestroyWindow(window_);
  }
  PropertySheetWindow(const PropertySheetWindow&) = delete;
  PropertySheetWindow& operator=(const PropertySheetWindow&) = delete;

  void Run() {
    const DestroyedModel atEnd(sheet_);
    sheet_.Create();
    OpenWindows::Update();
    FitButtons(window_, ButtonWindows());
    Show();
    events_.OnShown();
    RunModalLoop(window_, sheet_, [this](MSG& message) {
      return PropSheet_IsDialogMessage(window_, &message) != FALSE;
    });
  }

  Rectangle WorkArea() override {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return FromRect(area);
  }

  Rectangle WindowRectangle() override {
    RECT rect{};
    GetWindowRect(window_, &rect);
    return FromRect(rect);
  }

  int ScrollBarWidth() override { return GetSystemMetricsForDpi(SM_CXVSCROLL, dpi_); }

  Rectangle ButtonRectangle(int commandId) override {
    RECT rect{};
    GetWindowRect(GetDlgItem(window_, commandId), &rect);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&rect), 2);
    return FromRect(rect);
  }

  void Resize(int width, int height) override {
    SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
  }

  void ShowScrollBar(const ScrollInfo& info) override {
    ::ShowScrollBar(window_, SB_VERT, TRUE);
    SCROLLINFO all{};
    all.cbSize = sizeof all;
    all.fMask = SIF_ALL;
    all.nMin = info.minimum;
    all.nMax = info.maximum;
    all.nPage = static_cast<UINT>(info.page);
    all.nPos = info.position;
    SetScrollInfo(window_, SB_VERT, &all, TRUE);
  }

  void SetScrollPosition(int position, bool redraw) override {
    SetScrollPos(window_, SB_VERT, position, redraw ? TRUE : FALSE);
  }

  void ScrollContents(int distance) override {
    ScrollWindow(window_, 0, distance, nullptr, nullptr);
  }

  // The system has turned already when the user does.
  void ShowPage(int index) override {
    if (index != arrivingPage_) TurnTo(index);
    OpenWindows::Update();
    PostMessageW(window_, kPlacePage, 0, 0);
    events_.OnPage(index);
  }

 private:
  // All pages get the size of the largest, in the language of now.
  void MakePages() {
    const DialogFont font(dpi_);
    const FontMeasure plain(font.Handle(), dpi_);
    Size units;
    for (const CPropertyPage* page : sheet_.Pages()) {
      const CaptionMarks marks(*page);
      const Size natural = page->GetLayout().NaturalSize(MarkedMeasure(font.Handle(), dpi_, marks));
      units.width = std::max(units.width, plain.HorizontalUnits(natural.width));
      units.height = std::max(units.height, plain.VerticalUnits(natural.height));
    }
    for (CPropertyPage* page : sheet_.Pages()) {
      const int index = static_cast<int>(pages_.size());
      pages_.push_back(
          std::make_unique<PageWindow>(*page, dpi_, units, [this, index] { OnTurned(index); }));
    }
  }

  void MakeWindow() {
    std::vector<PROPSHEETPAGEW> pages;
    for (const auto& page : pages_) pages.push_back(page->Description());
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags =
        PSH_PROPSHEETPAGE | PSH_MODELESS | PSH_HASHELP | PSH_NOCONTEXTHELP | PSH_USECALLBACK;
    header.pfnCallback = &HideAtFirst;
    header.hwndParent = owner_;
    header.hInstance = OurModule();
    header.pszCaption = Wide(sheet_.Title());
    header.nPages = static_cast<UINT>(pages.size());
    header.nStartPage = static_cast<UINT>(sheet_.GetActiveIndex());
    header.ppsp = pages.data();
    turning_ = true;
    const INT_PTR made = PropertySheetW(&header);
    turning_ = false;
    if (made <= 0) throw std::runtime_error("the system makes no property sheet");
    window_ = reinterpret_cast<HWND>(made);
  }

  // Nobody is to see it before its first page has been filled.
  static int CALLBACK HideAtFirst(HWND, UINT message, LPARAM sheetTemplate) {
    if (message != PSCB_PRECREATE) return 0;
    auto* style = reinterpret_cast<DWORD*>(sheetTemplate);
    const bool isExtended = HIWORD(*style) == 0xFFFF;
    style[isExtended ? 3 : 0] &= ~WS_VISIBLE;
    return 0;
  }

  void Show() const {
    ShowWindow(window_, SW_SHOW);
    HWND page = PropSheet_GetCurrentPageHwnd(window_);
    SetFocus(GetNextDlgTabItem(page, nullptr, FALSE));
    UpdateWindow(window_);
  }

  // A page comes where pages stood at the opening; the sheet may have been scrolled since.
  void PlacePage() const {
    HWND tabs = PropSheet_GetTabControl(window_);
    RECT place{};
    GetClientRect(tabs, &place);
    TabCtrl_AdjustRect(tabs, FALSE, &place);
    MapWindowPoints(tabs, window_, reinterpret_cast<POINT*>(&place), 2);
    SetWindowPos(PropSheet_GetCurrentPageHwnd(window_), nullptr, place.left, place.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

  void TurnTo(int index) {
    const bool wasTurning = std::exchange(turning_, true);
    PropSheet_SetCurSel(window_, nullptr, index);
    turning_ = wasTurning;
  }

  // The user has turned to a page.
  void OnTurned(int index) {
    if (turning_) return;
    const int former = std::exchange(arrivingPage_, index);
    RunEvent([&] { sheet_.SetActivePage(index); });
    arrivingPage_ = former;
  }

  std::vector<HWND> ButtonWindows() const {
    std::vector<HWND> windows;
    for (const auto& binder : controls_->Binders()) windows.push_back(binder->Window());
    return windows;
  }

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR, DWORD_PTR self) {
    auto* sheet = reinterpret_cast<PropertySheetWindow*>(self);
    if (sheet->OnMessage(message, wParam, lParam)) return 0;
    const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_DPICHANGED) sheet->OnDpiChanged();
    return answer;
  }

  // The system has given its own buttons another font; ours keeps the stock one.
  void OnDpiChanged() { FitButtons(window_, ButtonWindows()); }

  // True for what is not the system's business.
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
      case WM_CLOSE:
        RunEvent([this] { sheet_.OnCancel(); });
        return true;
      case WM_COMMAND:
        return controls_ && controls_->OnMessage(message, wParam, lParam).has_value();
      case WM_VSCROLL:
        RunEvent(
            [&] { sheet_.OnVScroll(static_cast<ScrollCode>(LOWORD(wParam)), HIWORD(wParam)); });
        return true;
      case kPlacePage:
        PlacePage();
        return true;
      case WM_DESTROY:
        WakeModalLoop();
        return false;
      case WM_MOUSEWHEEL:
        return OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
      default:
        return false;
    }
  }

  bool OnWheel(int delta) {
    bool handled = false;
    RunEvent([&] { handled = sheet_.OnMouseWheel(delta); });
    return handled;
  }

  CPropertySheet& sheet_;
  ModalEvents& events_;
  HWND owner_;
  unsigned dpi_;
  std::optional<DisabledWindows> modal_{std::in_place};
  std::vector<std::unique_ptr<PageWindow>> pages_;
  HWND window_ = nullptr;
  std::optional<SheetControls> controls_;
  bool turning_ = false;
  int arrivingPage_ = -1;
};

}  // namespace

int RunPropertySheetWindow(CPropertySheet& sheet, ModalEvents& events) {
  const WindowScope scope;
  PropertySheetWindow(sheet, events).Run();
  return sheet.Result();
}

}  // namespace qutav
