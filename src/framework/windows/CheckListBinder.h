// The window of a check list (`SysListView32`).
#pragma once

#include <vector>

#include "framework/CheckList.h"
#include "framework/windows/ControlBinder.h"

namespace qutav {

class CheckListBinder final : public ControlBinder {
 public:
  CheckListBinder(CheckList& list, const WindowPlace& place);
  void OnNotify(const NMHDR& notification) override;

 private:
  void Show() override;
  void OnPlaced() override;
  void AddColumn();
  int ColumnWidth() const;
  bool HasSameTexts() const;
  void ShowRows();
  void ShowStates();
  void TakeChange(const NMLISTVIEW& change);

  CheckList& list_;
  std::vector<CheckList::Row> shown_;
};

}  // namespace qutav
