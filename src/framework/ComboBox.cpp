#include "framework/ComboBox.h"

#include <algorithm>
#include <utility>

#include "framework/ControlVisitor.h"
#include "framework/RowText.h"
#include "platform/Services.h"

namespace qutav {

void ComboBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

int ComboBox::AddString(const std::u16string& row) {
  const auto place =
      sorted ? std::upper_bound(rows_.begin(), rows_.end(), row, RowComesBefore) : rows_.end();
  const int index = static_cast<int>(place - rows_.begin());
  InsertString(index, row);
  return index;
}

void ComboBox::InsertString(int index, const std::u16string& row) {
  rows_.insert(rows_.begin() + index, row);
  if (selection_ >= index) ++selection_;
}

void ComboBox::ResetContent() {
  rows_.clear();
  SetCurSel(-1);
}

int ComboBox::FindString(const std::u16string& beginning) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const std::u16string& row) {
    return RowBeginsWith(row, beginning);
  });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int ComboBox::FindStringExact(const std::u16string& row) const { return FindEqualRow(rows_, row); }

void ComboBox::SetCurSel(int index) {
  selection_ = index >= 0 && index < GetCount() ? index : -1;
  SetText(selection_ < 0 ? std::u16string() : GetRow(selection_));
}

void ComboBox::FitDropWidth() {
  if (rows_.empty()) return;
  FrontEnd& frontEnd = *TheServices().frontEnd;
  int widest = 0;
  for (const std::u16string& row : rows_) widest = std::max(widest, frontEnd.TextWidth(*this, row));
  droppedWidth_ = widest + frontEnd.TextWidth(*this, u"0");
}

void ComboBox::Choose(int index) {
  SetCurSel(index);
  if (onSelectionEnd) onSelectionEnd();
}

void ComboBox::Type(std::u16string typed) {
  selection_ = -1;
  SetText(std::move(typed));
}

}  // namespace qutav
