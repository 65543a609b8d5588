#include "framework/windows/ButtonBinders.h"

#include <algorithm>
#include <vector>

#include "framework/windows/ButtonImages.h"
#include "framework/windows/WindowScope.h"
#include "framework/windows/WindowText.h"
#include "platform/windows/Wide.h"

// behind the system's own header
#include <uxtheme.h>

namespace qutav {
namespace {

constexpr DWORD kTabStop = WS_TABSTOP | WS_GROUP;

// The arrow keys go round among the radio buttons of a group, from one that begins it to the next.
DWORD RadioStyle(const RadioButton& button) {
  const bool isFirst = button.group == nullptr || button.group->Buttons().front() == &button;
  return BS_AUTORADIOBUTTON | BS_MULTILINE | (isFirst ? WS_GROUP : 0);
}

// The Tab key leads to one radio button of a group: the checked one, or else the first.
bool HasTabStop(const RadioButton& button) {
  if (button.group == nullptr) return true;
  const std::vector<RadioButton*>& buttons = button.group->Buttons();
  auto stop = std::find_if(buttons.begin(), buttons.end(),
                           [](const auto* other) { return other->enabled && other->checked; });
  if (stop == buttons.end()) {
    stop = std::find_if(buttons.begin(), buttons.end(),
                        [](const auto* other) { return other->enabled; });
  }
  return stop != buttons.end() && *stop == &button;
}

// The system sets this style too, but only at a change of the check.
void SetTabStop(HWND window, bool stops) {
  const LONG style = GetWindowLongW(window, GWL_STYLE);
  const LONG wanted = stops ? style | WS_TABSTOP : style & ~WS_TABSTOP;
  if (wanted != style) SetWindowLongW(window, GWL_STYLE, wanted);
}

void ShowCheck(HWND window, bool checked) {
  const WPARAM state = checked ? BST_CHECKED : BST_UNCHECKED;
  if (SendMessageW(window, BM_GETCHECK, 0, 0) != static_cast<LRESULT>(state)) {
    SendMessageW(window, BM_SETCHECK, state, 0);
  }
}

}  // namespace

ButtonBinder::ButtonBinder(Button& button, const WindowPlace& place)
    : ControlBinder(button, place,
                    {WC_BUTTONW, (button.isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | kTabStop}),
      button_(button) {}

ButtonBinder::ButtonBinder(Button& button, HWND window)
    : ControlBinder(button, window), button_(button) {}

void ButtonBinder::OnCommand(int notification) {
  if (notification == BN_CLICKED) RunEvent([&] { button_.Click(); });
}

void ButtonBinder::Show() { SetWindowTextIfOther(Window(), Shown(button_.text)); }

// The model switches, and the window shows what the model says.
CheckBoxBinder::CheckBoxBinder(CheckBox& box, const WindowPlace& place)
    : ControlBinder(box, place, {WC_BUTTONW, BS_CHECKBOX | BS_MULTILINE | kTabStop}), box_(box) {}

void CheckBoxBinder::OnCommand(int notification) {
  if (notification == BN_CLICKED) RunEvent([&] { box_.Click(); });
}

void CheckBoxBinder::Show() {
  SetWindowTextIfOther(Window(), Shown(box_.text));
  ShowCheck(Window(), box_.checked);
}

RadioButtonBinder::RadioButtonBinder(RadioButton& button, const WindowPlace& place)
    : ControlBinder(button, place, {WC_BUTTONW, RadioStyle(button)}), button_(button) {}

void RadioButtonBinder::OnCommand(int notification) {
  if (notification == BN_CLICKED) RunEvent([&] { button_.Click(); });
}

void RadioButtonBinder::Show() {
  SetWindowTextIfOther(Window(), Shown(button_.text));
  ShowCheck(Window(), button_.checked);
  SetTabStop(Window(), HasTabStop(button_));
}

ImageButtonBinder::ImageButtonBinder(CStretchBitmapButton& button, const WindowPlace& place)
    : ControlBinder(button, place, {WC_BUTTONW, BS_OWNERDRAW | BS_NOTIFY | kTabStop}),
      button_(button) {
  AddTooltip();
}

ImageButtonBinder::~ImageButtonBinder() { DestroyWindow(tooltip_); }

void ImageButtonBinder::AddTooltip() {
  SetWindowTextIfOther(Window(), button_.caption);
  tooltip_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP,
                             CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, Window(),
                             nullptr, OurModule(), nullptr);
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = GetParent(Window());
  tool.uId = reinterpret_cast<UINT_PTR>(Window());
  tool.lpszText = const_cast<wchar_t*>(Wide(button_.caption));
  SendMessageW(tooltip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ImageButtonBinder::OnCommand(int notification) {
  switch (notification) {
    case BN_CLICKED:
    case BN_DOUBLECLICKED:  // which a button that draws itself says of every second fast click
      RunEvent([&] { button_.Click(); });
      break;
    case BN_SETFOCUS:
    case BN_KILLFOCUS:
      button_.focused = notification == BN_SETFOCUS;
      Update();
      break;
    default:
      break;
  }
}

void ImageButtonBinder::OnDrawItem(const DRAWITEMSTRUCT& item) {
  // A page's background is not that of a dialog.
  RECT place = item.rcItem;
  if (FAILED(DrawThemeParentBackground(Window(), item.hDC, &place))) {
    FillRect(item.hDC, &place, GetSysColorBrush(COLOR_BTNFACE));
  }
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  DrawButtonImage(item.hDC, item.rcItem, button_.image, button_.DrawItem(selected));
  focusedOnScreen_ = button_.focused;
}

// Being disabled brings a drawing of its own.
void ImageButtonBinder::Show() {
  if (button_.focused != focusedOnScreen_) InvalidateRect(Window(), nullptr, FALSE);
}

}  // namespace qutav
