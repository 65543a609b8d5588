#include "framework/windows/ControlBinder.h"

#include <utility>

#include "framework/windows/WindowScope.h"
#include "framework/windows/WindowText.h"
#include "platform/Text.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

HWND CreateChild(const wchar_t* className, const std::u16string& text, DWORD style,
                 DWORD extendedStyle, HWND parent, int id) {
  return CreateWindowExW(extendedStyle, className, Wide(text), WS_CHILD | style, 0, 0, 0, 0, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), OurModule(), nullptr);
}

void MoveWindowTo(HWND window, const Rectangle& place) {
  SetWindowPos(window, nullptr, place.left, place.top, place.Width(), place.Height(),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void SetVisible(HWND window, bool visible) {
  const bool isVisible = (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
  if (isVisible != visible) ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
}

void SetEnabled(HWND window, bool enabled) {
  if ((IsWindowEnabled(window) != FALSE) == enabled) return;
  // A disabled window that keeps the focus would take the keyboard with it.
  if (!enabled && GetFocus() == window) {
    SendMessageW(GetAncestor(window, GA_PARENT), WM_NEXTDLGCTL, 0, FALSE);
  }
  EnableWindow(window, enabled ? TRUE : FALSE);
}

}  // namespace

// A caption comes right before its control: its mnemonic leads there, and a screen reader takes it
// for the control's name.
ControlBinder::ControlBinder(Control& control, const WindowPlace& place, const WindowKind& kind)
    : control_(control), serial_(control.serial), dpi_(place.dpi) {
  if (kind.hasCaption && !control.caption.empty()) {
    caption_ =
        CreateChild(WC_STATICW, Shown(control.caption), SS_LEFT | WS_GROUP, 0, place.parent, -1);
  }
  window_ = CreateChild(kind.className, {}, kind.style, kind.extendedStyle, place.parent, place.id);
}

ControlBinder::ControlBinder(Control& control, HWND window)
    : control_(control),
      serial_(control.serial),
      window_(window),
      dpi_(GetDpiForWindow(window)),
      owned_(false) {}

ControlBinder::~ControlBinder() {
  if (!owned_) return;
  if (caption_ != nullptr) DestroyWindow(caption_);
  DestroyWindow(window_);
}

void ControlBinder::SetFont(HFONT font, unsigned dpi) {
  dpi_ = dpi;
  for (HWND window : {caption_, window_}) {
    if (window == nullptr) continue;
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  }
  OnFont(font);
}

void ControlBinder::SetMnemonic(std::u16string text) {
  plainText_ = caption_ != nullptr ? control_.caption : control_.text;
  mnemonicText_ = std::move(text);
  if (caption_ != nullptr) SetWindowTextIfOther(caption_, Shown(control_.caption));
}

void ControlBinder::Place(const PlacedControl& placed) {
  if (caption_ != nullptr) MoveWindowTo(caption_, placed.caption);
  MoveWindowTo(window_, placed.place);
  OnPlaced();
}

void ControlBinder::Update() {
  if (std::exchange(updating_, true)) return;
  Show();
  SetEnabled(window_, control_.enabled);
  SetVisible(window_, control_.visible);
  if (caption_ != nullptr) SetVisible(caption_, control_.visible);
  updating_ = false;
}

std::u16string ControlBinder::Shown(const std::u16string& text) const {
  return !mnemonicText_.empty() && text == plainText_ ? mnemonicText_
                                                      : ReplaceAll(text, u"&", u"&&");
}

}  // namespace qutav
