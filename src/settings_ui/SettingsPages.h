#pragma once

#include "settings_ui/AdvancedSettingsDlg.h"
#include "settings_ui/AppSettingsDlg.h"
#include "settings_ui/DigitalSigDlg.h"
#include "settings_ui/DroFeaturesDlg.h"
#include "settings_ui/IconPreviewDlg.h"
#include "settings_ui/IpaSettingsDlg.h"
#include "settings_ui/LanguagesDlg.h"
#include "settings_ui/VolDeployDlg.h"

namespace qutav {

/// Every page, made anew for each opening of the sheet. The two desktop pages belong to no form;
/// they come and go with the others, and the General pages close the descriptor when they go.
struct SettingsPages {
  CAppSettingsDlg desktopGeneral;
  CIpaSettingsDlg general;
  CDigitalSigDlg androidDeployment;
  CIconPreviewDlg icons;
  CAdvancedSettingsDlg desktopAdvanced;
  CVolDeployDlg iosDeployment;
  CDroFeaturesDlg permissions;
  CLanguagesDlg languages;
};

}  // namespace qutav
