#include "framework/windows/CheckListBinder.h"

#include <algorithm>
#include <utility>

#include "framework/windows/WindowText.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

constexpr int kAroundColumn = 4;
constexpr int kAroundHeading = 20;

LVITEMW ItemOf(int index, const std::u16string& text) {
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = index;
  item.pszText = const_cast<wchar_t*>(Wide(text));
  return item;
}

bool IsChecked(HWND window, int index) { return ListView_GetCheckState(window, index) == 1; }

bool IsSelected(HWND window, int index) {
  return ListView_GetItemState(window, index, LVIS_SELECTED) != 0;
}

void Select(HWND window, int index, bool selected) {
  ListView_SetItemState(window, index, selected ? LVIS_SELECTED : 0U, LVIS_SELECTED);
}

}  // namespace

CheckListBinder::CheckListBinder(CheckList& list, const WindowPlace& place)
    : ControlBinder(
          list, place,
          {WC_LISTVIEWW, LVS_REPORT | LVS_NOSORTHEADER | LVS_SHOWSELALWAYS | WS_TABSTOP | WS_GROUP,
           WS_EX_CLIENTEDGE}),
      list_(list) {
  DWORD style = LVS_EX_CHECKBOXES | LVS_EX_GRIDLINES;
  if (list_.fullRowSelect) style |= LVS_EX_FULLROWSELECT;
  ListView_SetExtendedListViewStyle(Window(), style);
  SetWindowTextIfOther(Window(), list_.caption);
  AddColumn();
}

void CheckListBinder::AddColumn() {
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT;
  column.pszText = const_cast<wchar_t*>(Wide(list_.caption));
  ListView_InsertColumn(Window(), 0, &column);
}

void CheckListBinder::OnPlaced() { ListView_SetColumnWidth(Window(), 0, ColumnWidth()); }

// At least what the heading needs, which is longer in some languages.
int CheckListBinder::ColumnWidth() const {
  if (list_.columnWidth == CheckList::kWholeWidth) {
    RECT place{};
    GetWindowRect(Window(), &place);
    return place.right - place.left - kAroundColumn;
  }
  const int heading = ListView_GetStringWidth(Window(), Wide(list_.caption));
  return std::max(Scaled(list_.columnWidth), heading + Scaled(kAroundHeading));
}

void CheckListBinder::OnNotify(const NMHDR& notification) {
  if (IsUpdating()) return;
  if (notification.code == NM_CLICK) RunEvent([&] { list_.Click(); });
  if (notification.code == LVN_ITEMCHANGED) {
    TakeChange(reinterpret_cast<const NMLISTVIEW&>(notification));
  }
}

void CheckListBinder::TakeChange(const NMLISTVIEW& change) {
  const int index = change.iItem;
  if ((change.uChanged & LVIF_STATE) == 0 || index < 0 || index >= list_.GetCount()) return;
  CheckList::Row& row = shown_[static_cast<std::size_t>(index)];
  row.checked = IsChecked(Window(), index);
  row.selected = IsSelected(Window(), index);
  RunEvent([this, index, state = row] {
    list_.SetCheck(index, state.checked);
    list_.SetSelected(index, state.selected);
  });
}

void CheckListBinder::Show() {
  if (!HasSameTexts()) ShowRows();
  ShowStates();
}

bool CheckListBinder::HasSameTexts() const {
  return std::equal(shown_.begin(), shown_.end(), list_.Rows().begin(), list_.Rows().end(),
                    [](const auto& shown, const auto& row) { return shown.text == row.text; });
}

void CheckListBinder::ShowRows() {
  Send(WM_SETREDRAW, FALSE);
  ListView_DeleteAllItems(Window());
  shown_.clear();
  for (const CheckList::Row& row : list_.Rows()) {
    const LVITEMW item = ItemOf(static_cast<int>(shown_.size()), row.text);
    ListView_InsertItem(Window(), &item);
    shown_.push_back({row.text});
  }
  Send(WM_SETREDRAW, TRUE);
}

// Only what the model has changed: the window may have changed other rows, and not told it yet.
void CheckListBinder::ShowStates() {
  for (int i = 0; i < list_.GetCount(); ++i) {
    const CheckList::Row& row = list_.Rows()[static_cast<std::size_t>(i)];
    CheckList::Row& shown = shown_[static_cast<std::size_t>(i)];
    if (std::exchange(shown.checked, row.checked) != row.checked) {
      ListView_SetCheckState(Window(), i, row.checked ? TRUE : FALSE);
    }
    if (std::exchange(shown.selected, row.selected) != row.selected) {
      Select(Window(), i, row.selected);
    }
  }
}

}  // namespace qutav
