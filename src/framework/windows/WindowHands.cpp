#include "framework/windows/WindowHands.h"

#include "framework/windows/OpenWindows.h"
#include "framework/windows/WindowPicture.h"
#include "framework/windows/WindowRecord.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

HWND WindowOf(const Control& control) { return OpenWindows::BinderOf(control)->Window(); }

// What a control tells its parent when a user has acted on it.
void Notify(HWND window, int notification) {
  SendMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), notification),
               reinterpret_cast<LPARAM>(window));
}

void ReplaceText(HWND edit, const std::u16string& text) {
  SendMessageW(edit, EM_SETSEL, 0, -1);
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Wide(text)));
}

HWND EditOf(HWND combo) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(combo, &parts);
  return parts.hwndItem;
}

}  // namespace

// A window that is not active may not take the click.
void WindowHands::Click(Clickable& control) {
  const HWND window = WindowOf(control);
  SetActiveWindow(GetAncestor(window, GA_ROOT));
  SendMessageW(window, BM_CLICK, 0, 0);
}

void WindowHands::Type(Edit& edit, const std::u16string& text) {
  ReplaceText(WindowOf(edit), text);
}

void WindowHands::Type(ComboBox& combo, const std::u16string& text) {
  ReplaceText(EditOf(WindowOf(combo)), text);
}

void WindowHands::Choose(ComboBox& combo, int row) {
  const HWND window = WindowOf(combo);
  SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  Notify(window, CBN_SELENDOK);
}

void WindowHands::Choose(ListBox& list, int row) {
  const HWND window = WindowOf(list);
  SendMessageW(window, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  Notify(window, LBN_SELCHANGE);
}

void WindowHands::Choose(CheckList& list, int row) {
  const HWND window = WindowOf(list);
  ListView_SetItemState(window, -1, 0U, LVIS_SELECTED);
  ListView_SetItemState(window, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void WindowHands::Toggle(CheckList& list, int row) {
  const HWND window = WindowOf(list);
  ListView_SetCheckState(window, row, list.IsChecked(row) ? FALSE : TRUE);
}

void WindowHands::TurnTo(CPropertySheet& sheet, int page) {
  PropSheet_SetCurSel(OpenWindows::HostOf(sheet)->Window(), nullptr, page);
}

nlohmann::ordered_json WindowHands::Look(const CDialog& dialog) { return RecordWindows(dialog); }

bool WindowHands::TakePicture(const CDialog& dialog, const std::string& path) {
  return WriteWindowPicture(OpenWindows::HostOf(dialog)->Window(), path);
}

}  // namespace qutav
