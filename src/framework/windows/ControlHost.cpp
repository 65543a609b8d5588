#include "framework/windows/ControlHost.h"

#include <algorithm>
#include <iterator>

#include "framework/windows/ModalLoop.h"
#include "framework/windows/OpenWindows.h"

namespace qutav {
namespace {

constexpr int kFirstId = 1000;

bool StillHas(const CDialog& dialog, const ControlBinder& binder) {
  return std::any_of(dialog.Controls().begin(), dialog.Controls().end(),
                     [&](const auto& control) { return binder.Binds(*control); });
}

// The tab order is the order of the windows.
void PutBehind(const ControlBinder& binder, HWND former) {
  constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
  if (binder.CaptionWindow() != nullptr) {
    SetWindowPos(binder.CaptionWindow(), former, 0, 0, 0, 0, kOrderOnly);
    former = binder.CaptionWindow();
  }
  SetWindowPos(binder.Window(), former, 0, 0, 0, 0, kOrderOnly);
}

}  // namespace

ControlHost::ControlHost(HWND window, CDialog& dialog, unsigned dpi)
    : window_(window),
      dialog_(dialog),
      dpi_(dpi),
      font_(std::make_unique<DialogFont>(dpi)),
      marks_(dialog),
      nextId_(kFirstId) {
  OpenWindows::Add(*this);
}

ControlHost::~ControlHost() { OpenWindows::Remove(*this); }

void ControlHost::RemoveGone() {
  const auto gone =
      std::stable_partition(binders_.begin(), binders_.end(),
                            [this](const auto& binder) { return StillHas(dialog_, *binder); });
  // Moved out first: windows that go cause messages.
  const std::vector<std::unique_ptr<ControlBinder>> binders(
      std::make_move_iterator(gone), std::make_move_iterator(binders_.end()));
  binders_.erase(gone, binders_.end());
  for (const auto& binder : binders) {
    if (!binder->IsOurs()) DestroyWindow(binder->Window());
  }
}

void ControlHost::AddNew() {
  HWND former = HWND_TOP;
  for (const auto& control : dialog_.Controls()) {
    ControlBinder* binder = BinderOf(*control);
    if (binder == nullptr) {
      binder = binders_.emplace_back(Bind(*control, {window_, nextId_++, dpi_})).get();
      if (binder->IsOurs()) PutBehind(*binder, former);
    }
    former = binder->Window();
  }
}

std::unique_ptr<ControlBinder> ControlHost::Bind(Control& control, const WindowPlace& place) {
  auto binder = MakeBinder(control, place);
  binder->SetFont(Font(), dpi_);
  binder->SetMnemonic(marks_.Of(control));
  const auto* button = dynamic_cast<Button*>(&control);
  if (button != nullptr && button->isDefault) {
    SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(place.id), 0);
  }
  return binder;
}

ControlBinder* ControlHost::BinderOf(const Control& control) const {
  for (const auto& binder : binders_) {
    if (binder->Binds(control)) return binder.get();
  }
  return nullptr;
}

ControlBinder* ControlHost::BinderOf(HWND window) const {
  for (const auto& binder : binders_) {
    if (binder->Window() == window) return binder.get();
  }
  return nullptr;
}

ControlBinder* ControlHost::BinderOf(int id) const { return BinderOf(GetDlgItem(window_, id)); }

Size ControlHost::NaturalSize() const {
  return dialog_.GetLayout().NaturalSize(MarkedMeasure(Font(), dpi_, marks_));
}

void ControlHost::Arrange(const Size& size) {
  const MarkedMeasure measure(Font(), dpi_, marks_);
  for (const PlacedControl& placed : dialog_.GetLayout().Arrange(measure, size)) {
    BinderOf(*placed.control)->Place(placed);
  }
}

void ControlHost::SetDpi(unsigned dpi) {
  dpi_ = dpi;
  auto font = std::make_unique<DialogFont>(dpi);
  for (const auto& binder : binders_) binder->SetFont(font->Handle(), dpi);
  font_ = std::move(font);
}

void ControlHost::Update() {
  RemoveGone();
  AddNew();
  for (const auto& binder : binders_) binder->Update();
  UpdateTimers();
}

void ControlHost::UpdateTimers() {
  for (const auto& [id, period] : dialog_.Timers()) {
    if (std::find(timers_.begin(), timers_.end(), id) != timers_.end()) continue;
    ::SetTimer(window_, id, static_cast<UINT>(period.count()), nullptr);
    timers_.push_back(id);
  }
  std::erase_if(timers_, [this](CDialog::TimerId id) {
    if (dialog_.Timers().contains(id)) return false;
    ::KillTimer(window_, id);
    return true;
  });
}

void ControlHost::WakeWhenEnded() const {
  if (dialog_.HasEnded()) WakeModalLoop();
}

std::optional<INT_PTR> ControlHost::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      OnCommand(LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_NOTIFY: {
      const auto& notification = *reinterpret_cast<const NMHDR*>(lParam);
      if (ControlBinder* binder = BinderOf(notification.hwndFrom)) {
        binder->OnNotify(notification);
        return TRUE;
      }
      return {};
    }
    case WM_DRAWITEM:
      if (ControlBinder* binder = BinderOf(static_cast<int>(wParam))) {
        binder->OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      }
      return TRUE;
    case WM_TIMER:
      RunEvent([&] { dialog_.OnTimer(static_cast<CDialog::TimerId>(wParam)); });
      return TRUE;
    default:
      return {};
  }
}

// Enter presses the default button; Esc and the close box cancel, whether there is a button for it
// or not.
void ControlHost::OnCommand(int id, int notification) {
  if (id == IDCANCEL) return RunEvent([&] { dialog_.OnCancel(); });
  if (ControlBinder* binder = BinderOf(id)) binder->OnCommand(notification);
}

void ControlHost::PreTranslate(const MSG& message) {
  const bool isOurs = message.hwnd == window_ || IsChild(window_, message.hwnd) != FALSE;
  if (message.message != WM_MOUSEMOVE || !isOurs) return;
  const ControlBinder* under = BinderOf(message.hwnd);
  dialog_.OnMouseMove(under == nullptr ? nullptr : &under->Model());
  Update();
}

}  // namespace qutav
