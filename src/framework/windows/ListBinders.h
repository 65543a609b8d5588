// Windows of rows to choose from.
#pragma once

#include <string>
#include <vector>

#include "framework/ComboBox.h"
#include "framework/ListBox.h"
#include "framework/windows/ControlBinder.h"

namespace qutav {

class ComboBoxBinder final : public ControlBinder {
 public:
  ComboBoxBinder(ComboBox& combo, const WindowPlace& place);
  void OnCommand(int notification) override;

 private:
  void Show() override;
  void ShowRows();
  void ShowSelection();
  void ShowText();
  void TakeChoice();

  ComboBox& combo_;
  std::vector<std::u16string> rows_;
  int selection_ = -1;
  int droppedWidth_ = 0;
};

class ListBoxBinder final : public ControlBinder {
 public:
  ListBoxBinder(ListBox& list, const WindowPlace& place);
  void OnCommand(int notification) override;

 private:
  void Show() override;
  void ShowRows();

  ListBox& list_;
  std::vector<std::u16string> rows_;
};

}  // namespace qutav
