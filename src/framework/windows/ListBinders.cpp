#include "framework/windows/ListBinders.h"

#include "framework/windows/WindowText.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

constexpr WPARAM kNone = static_cast<WPARAM>(-1);
constexpr int kOpenRows = 12;

DWORD StyleOf(ComboStyle style) {
  return style == ComboStyle::kDropDown ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST;
}

WPARAM IndexOrNone(int index) { return index < 0 ? kNone : static_cast<WPARAM>(index); }

LPARAM RowParameter(const std::u16string& row) { return reinterpret_cast<LPARAM>(Wide(row)); }

}  // namespace

// The model keeps the rows in order, so the window need not.
ComboBoxBinder::ComboBoxBinder(ComboBox& combo, const WindowPlace& place)
    : ControlBinder(
          combo, place,
          {WC_COMBOBOXW, StyleOf(combo.style) | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP | WS_GROUP,
           0, true}),
      combo_(combo) {
  Send(CB_SETMINVISIBLE, kOpenRows);
}

void ComboBoxBinder::OnCommand(int notification) {
  if (IsUpdating()) return;
  switch (notification) {
    case CBN_SELENDOK:
      TakeChoice();
      break;
    case CBN_SELENDCANCEL:  // the keys may have moved the choice meanwhile
      selection_ = static_cast<int>(Send(CB_GETCURSEL));
      Update();
      break;
    case CBN_EDITCHANGE:  // the choice goes from the model; taking it from the window moves the
                          // caret
      selection_ = -1;
      RunEvent([&] { combo_.Type(WindowText(Window())); });
      break;
    default:
      break;
  }
}

void ComboBoxBinder::TakeChoice() {
  selection_ = static_cast<int>(Send(CB_GETCURSEL));
  if (selection_ >= 0) RunEvent([&] { combo_.Choose(selection_); });
}

void ComboBoxBinder::Show() {
  if (combo_.Rows() != rows_) ShowRows();
  if (combo_.GetCurSel() != selection_) ShowSelection();
  if (combo_.style == ComboStyle::kDropDown) ShowText();
  if (combo_.DroppedWidth() != droppedWidth_) {
    droppedWidth_ = combo_.DroppedWidth();
    Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(droppedWidth_));
  }
}

void ComboBoxBinder::ShowRows() {
  Send(CB_RESETCONTENT);
  for (const std::u16string& row : combo_.Rows()) Send(CB_ADDSTRING, 0, RowParameter(row));
  rows_ = combo_.Rows();
  selection_ = -1;
}

void ComboBoxBinder::ShowSelection() {
  selection_ = combo_.GetCurSel();
  Send(CB_SETCURSEL, IndexOrNone(selection_));
}

void ComboBoxBinder::ShowText() {
  if (WindowText(Window()) == combo_.text) return;
  SetWindowTextW(Window(), Wide(combo_.text));
  const WORD caret = static_cast<WORD>(combo_.IsCaretAtEnd() ? combo_.text.size() : 0);
  Send(CB_SETEDITSEL, 0, MAKELPARAM(caret, caret));
}

ListBoxBinder::ListBoxBinder(ListBox& list, const WindowPlace& place)
    : ControlBinder(list, place,
                    {WC_LISTBOXW,
                     LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL |
                         WS_TABSTOP | WS_GROUP,
                     WS_EX_CLIENTEDGE, true}),
      list_(list) {}

void ListBoxBinder::OnCommand(int notification) {
  if (notification != LBN_SELCHANGE) return;
  RunEvent([&] { list_.Choose(static_cast<int>(Send(LB_GETCURSEL))); });
}

void ListBoxBinder::Show() {
  if (list_.Rows() != rows_) ShowRows();
  const WPARAM selection = IndexOrNone(list_.GetCurSel());
  if (static_cast<WPARAM>(Send(LB_GETCURSEL)) != selection) Send(LB_SETCURSEL, selection);
  const WPARAM extent = static_cast<WPARAM>(list_.HorizontalExtent());
  if (static_cast<WPARAM>(Send(LB_GETHORIZONTALEXTENT)) != extent) {
    Send(LB_SETHORIZONTALEXTENT, extent);
  }
}

void ListBoxBinder::ShowRows() {
  const LRESULT top = Send(LB_GETTOPINDEX);
  Send(LB_RESETCONTENT);
  for (const std::u16string& row : list_.Rows()) Send(LB_ADDSTRING, 0, RowParameter(row));
  Send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
  rows_ = list_.Rows();
}

}  // namespace qutav
