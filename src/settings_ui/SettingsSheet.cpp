#include "settings_ui/SettingsSheet.h"

#include "descriptor/DescriptorDocument.h"
#include "framework/MessageBoxes.h"
#include "packaging/DocumentDescriptor.h"
#include "packaging/PublishDriver.h"
#include "platform/Services.h"
#include "settings_ui/DialogTexts.h"
#include "support/Paths.h"
#include "support/RegistryStore.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

CSettingsPropSheet::CSettingsPropSheet(bool ios, int startPage)
    : CPropertySheet(u"CSettingsPropSheet",
                     ios ? messages::kIosSettingsTitle : messages::kAndroidSettingsTitle,
                     startPage),
      ios_(ios) {
  Add<Button>(u"Publish", messages::kPublishButton).onClick = [this] { SheetPublish(); };
}

void CSettingsPropSheet::PutSetting(const std::u16string& key, const std::u16string& value) {
  changed_ = changed_ || !SettingsEquals(key, value);
  SettingsSet(key, value);
}

void CSettingsPropSheet::PutRegistryValue(const std::u16string& name, const std::u16string& value) {
  SetRegistryString(name, value);
}

void CSettingsPropSheet::OnOK() {
  SettingsSet(keys::kExitOk, changed_ ? u"true" : u"false");
  EndDialog(kIdOk);
}

// The sheet stays open, whatever comes of it.
void CSettingsPropSheet::SheetPublish() {
  if (CommonJavaPath().empty()) {
    ShowWarning(Message(messages::kJavaMissing));
    return;
  }
  if (ios_ && !CheckIosPackager()) return;
  PublishDriver(ios_ ? PublishTargetIpa : PublishTargetApk, true);
}

bool CSettingsPropSheet::CheckIosPackager() const {
  if (TheServices().files->Exists(SettingsGet(keys::kLaunchPath) + u"DRN/lib/drn.jar")) return true;
  ShowInformation(Message(messages::kIosFilesNotInstalled));
  return false;
}

bool OpenSettingsSheet(WindowHandle, int startPage) {
  if (LoadDocumentDescriptor(false) != kLoaded) return false;
  CSettingsPropSheet sheet(SettingsEquals(keys::kPublishIpa, u"true"), startPage);
  sheet.DoModal();
  // Unsaved edits of the descriptor go with the sheet, however it was left.
  CurrentDescriptor.Close();
  return true;
}

}  // namespace qutav
