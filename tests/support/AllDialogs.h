// One of each kind of dialog, for tests of what all have in common.
#pragma once

#include <memory>
#include <vector>

#include "framework/CDialog.h"
#include "packaging/SelfSignDlg.h"
#include "settings_ui/AdvancedSettingsDlg.h"
#include "settings_ui/AppSettingsDlg.h"
#include "settings_ui/DigitalSigDlg.h"
#include "settings_ui/DroFeaturesDlg.h"
#include "settings_ui/FileTypeDlg.h"
#include "settings_ui/IconPreviewDlg.h"
#include "settings_ui/IpaSettingsDlg.h"
#include "settings_ui/LanguagesDlg.h"
#include "settings_ui/ProgressDlg.h"
#include "settings_ui/SettingsSheet.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "settings_ui/TimestampRetryDlg.h"
#include "settings_ui/VolDeployDlg.h"
#include "win/MessageIds.h"

namespace qutav::test {

/// One of each dialog and page: everything that is laid out from a description.
inline std::vector<std::unique_ptr<CDialog>> DialogsAndPages() {
  static FileTypeRecord fileType;
  std::vector<std::unique_ptr<CDialog>> dialogs;
  dialogs.push_back(std::make_unique<CProgressDlg>(nullptr));
  dialogs.push_back(std::make_unique<CTimestampRetryDlg>(nullptr));
  dialogs.push_back(std::make_unique<CSignaturePasswordDlg>(nullptr));
  dialogs.push_back(std::make_unique<CSelfSignDlg>(nullptr));
  dialogs.push_back(std::make_unique<CFileTypeDlg>(nullptr, fileType));
  dialogs.push_back(std::make_unique<CIpaSettingsDlg>());
  dialogs.push_back(std::make_unique<CDigitalSigDlg>());
  dialogs.push_back(std::make_unique<CVolDeployDlg>());
  dialogs.push_back(std::make_unique<CIconPreviewDlg>());
  dialogs.push_back(std::make_unique<CDroFeaturesDlg>());
  dialogs.push_back(std::make_unique<CLanguagesDlg>());
  dialogs.push_back(std::make_unique<CAppSettingsDlg>());
  dialogs.push_back(std::make_unique<CAdvancedSettingsDlg>());
  return dialogs;
}

/// The same, and the sheet: everything that has labels of its own.
inline std::vector<std::unique_ptr<CDialog>> AllDialogs() {
  auto dialogs = DialogsAndPages();
  dialogs.push_back(std::make_unique<CSettingsPropSheet>(messages::kAndroidSettingsTitle));
  return dialogs;
}

}  // namespace qutav::test
