#pragma once

#include "framework/CPropertySheet.h"

namespace qutav {

/// The settings sheet in its Android or its iOS form.
class CSettingsPropSheet : public CPropertySheet {
 public:
  CSettingsPropSheet(bool ios, int startPage);

  void PutSetting(const std::u16string& key, const std::u16string& value) override;
  void OnOK() override;
  void PutRegistryValue(const std::u16string& name, const std::u16string& value) override;

 private:
  void SheetPublish();
  bool CheckIosPackager() const;

  bool ios_;
  bool changed_ = false;
};

/// Shows the sheet on a page; false when the document's descriptor cannot be loaded. Whether it was
/// left by OK after a change stands in the settings afterwards.
bool OpenSettingsSheet(WindowHandle owner, int startPage);

}  // namespace qutav
