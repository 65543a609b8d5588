#include "framework/ListBox.h"

#include <algorithm>

#include "framework/ControlVisitor.h"
#include "framework/RowText.h"
#include "platform/Services.h"

namespace qutav {

void ListBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void ListBox::DeleteString(int index) {
  rows_.erase(rows_.begin() + index);
  if (selection_ == index) selection_ = -1;
  if (selection_ > index) --selection_;
}

int ListBox::FindStringExact(const std::u16string& row) const { return FindEqualRow(rows_, row); }

void ListBox::SetCurSel(int index) { selection_ = index >= 0 && index < GetCount() ? index : -1; }

void ListBox::FitListExtent() {
  FrontEnd& frontEnd = *TheServices().frontEnd;
  horizontalExtent_ = 0;
  const int character = rows_.empty() ? 0 : frontEnd.AverageCharacterWidth(*this);
  for (const std::u16string& row : rows_) {
    horizontalExtent_ = std::max(horizontalExtent_, frontEnd.TextWidth(*this, row) + character);
  }
}

void ListBox::Choose(int index) {
  SetCurSel(index);
  if (onSelectionChange) onSelectionChange();
}

}  // namespace qutav
