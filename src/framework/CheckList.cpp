#include "framework/CheckList.h"

#include "framework/ControlVisitor.h"

namespace qutav {

void CheckList::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void CheckList::SetCheck(int index, bool checked) {
  if (At(index).checked == checked) return;
  At(index).checked = checked;
  Notify();
}

void CheckList::SetSelected(int index, bool selected) {
  if (At(index).selected == selected) return;
  At(index).selected = selected;
  Notify();
}

int CheckList::FirstSelected() const {
  for (int i = 0; i < GetCount(); ++i) {
    if (At(i).selected) return i;
  }
  return -1;
}

std::vector<std::u16string> CheckList::CheckedRows() const {
  std::vector<std::u16string> checked;
  for (const Row& row : rows_) {
    if (row.checked) checked.push_back(row.text);
  }
  return checked;
}

int CheckList::FindRow(const std::u16string& row) const {
  for (int i = 0; i < GetCount(); ++i) {
    if (At(i).text == row) return i;
  }
  return -1;
}

void CheckList::ToggleByUser(int index) {
  SetCheck(index, !IsChecked(index));
  Notify();
}

void CheckList::ChooseByUser(int index) {
  for (int i = 0; i < GetCount(); ++i) SetSelected(i, i == index);
  Notify();
}

void CheckList::Notify() const {
  if (onChange) onChange();
}

}  // namespace qutav
