// A list box: rows in the order in which they were added, one of them selected or none.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "framework/Control.h"

namespace qutav {

class ListBox final : public Control {
 public:
  void Accept(ControlVisitor& visitor) override;

  /// Runs when a user has selected a row; nothing that the program does runs it.
  std::function<void()> onSelectionChange;

  void AddString(const std::u16string& row) { rows_.push_back(row); }
  /// Deletes a row; the selection goes with its row (`LB_DELETESTRING`).
  void DeleteString(int index);
  /// The first row that equals a text without regard to case, -1 without one
  /// (`LB_FINDSTRINGEXACT`).
  int FindStringExact(const std::u16string& row) const;
  /// Selects a row; an index without a row selects none (`LB_SETCURSEL`).
  void SetCurSel(int index);
  int GetCurSel() const { return selection_; }
  int GetCount() const { return static_cast<int>(rows_.size()); }
  const std::u16string& GetRow(int index) const {
    return rows_.at(static_cast<std::size_t>(index));
  }
  const std::vector<std::u16string>& Rows() const { return rows_; }

  /// Lets the list scroll to the end of its widest row and an average character; 0 without rows.
  void FitListExtent();
  int HorizontalExtent() const { return horizontalExtent_; }

  /// As a user does.
  void Choose(int index);

 private:
  std::vector<std::u16string> rows_;
  int selection_ = -1;
  int horizontalExtent_ = 0;
};

}  // namespace qutav
