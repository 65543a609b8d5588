// A list in report view: one column, a check box in front of every row.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "framework/Control.h"

namespace qutav {

class CheckList final : public Control {
 public:
  struct Row {
    std::u16string text;
    bool checked = false;
    bool selected = false;
  };

  void Accept(ControlVisitor& visitor) override;

  /// The column's heading is the caption.
  static constexpr int kWholeWidth = 0;
  int columnWidth = kWholeWidth;  ///< in pixels at 96 DPI; whole: the list's width less 4
  bool fullRowSelect = false;

  /// Runs at every click, and at every change of a row's check or selection, whoever made it
  /// (`NM_CLICK`, `LVN_ITEMCHANGED`).
  std::function<void()> onChange;

  void InsertRow(const std::u16string& row) { rows_.push_back({row}); }
  void DeleteAllRows() { rows_.clear(); }
  void SetCheck(int index, bool checked);
  /// Selects a row beside those that are selected already, or takes its selection away.
  void SetSelected(int index, bool selected);
  bool IsChecked(int index) const { return At(index).checked; }
  /// The first selected row, -1 without one.
  int FirstSelected() const;
  int GetCount() const { return static_cast<int>(rows_.size()); }
  const std::vector<Row>& Rows() const { return rows_; }
  std::vector<std::u16string> CheckedRows() const;
  /// The first row of exactly this text, -1 without one.
  int FindRow(const std::u16string& row) const;

  /// As a user does: a click anywhere, one on a row's check box, and one on its text.
  void Click() const { Notify(); }
  void ToggleByUser(int index);
  void ChooseByUser(int index);

 private:
  const Row& At(int index) const { return rows_.at(static_cast<std::size_t>(index)); }
  Row& At(int index) { return rows_.at(static_cast<std::size_t>(index)); }
  void Notify() const;

  std::vector<Row> rows_;
};

}  // namespace qutav
