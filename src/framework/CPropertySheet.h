// The model of a modal property sheet.
#pragma once

#include <string>

#include "framework/CDialog.h"

namespace qutav {

class CPropertySheet : public CDialog {
 public:
  CPropertySheet(std::u16string className, std::uint32_t titleId, int startPage)
      : CDialog(std::move(className), titleId, nullptr), activePage_(startPage) {}

  int DoModal();
  int ActivePage() const { return activePage_; }

  /// Values that a script gives before it presses a button.
  virtual void PutSetting(const std::u16string& key, const std::u16string& value) = 0;
  virtual void PutRegistryValue(const std::u16string& name, const std::u16string& value) = 0;

 private:
  int activePage_;
};

}  // namespace qutav
