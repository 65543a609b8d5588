#include <memory>

#include "ServicesTest.h"
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
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav::test {
namespace {

// Everything that has labels of its own.
std::vector<std::unique_ptr<CDialog>> AllDialogs() {
  std::vector<std::unique_ptr<CDialog>> dialogs;
  dialogs.push_back(std::make_unique<CProgressDlg>(nullptr));
  dialogs.push_back(std::make_unique<CTimestampRetryDlg>(nullptr));
  dialogs.push_back(std::make_unique<CSignaturePasswordDlg>(nullptr));
  dialogs.push_back(std::make_unique<CDroFeaturesDlg>());
  dialogs.push_back(std::make_unique<CLanguagesDlg>());
  dialogs.push_back(std::make_unique<CSettingsPropSheet>(messages::kAndroidSettingsTitle));
  dialogs.push_back(std::make_unique<CDigitalSigDlg>());
  dialogs.push_back(std::make_unique<CSelfSignDlg>(nullptr));
  dialogs.push_back(std::make_unique<CIpaSettingsDlg>());
  dialogs.push_back(std::make_unique<CAppSettingsDlg>());
  dialogs.push_back(std::make_unique<CVolDeployDlg>());
  dialogs.push_back(std::make_unique<CIconPreviewDlg>());
  dialogs.push_back(std::make_unique<CAdvancedSettingsDlg>());
  static FileTypeRecord fileType;
  dialogs.push_back(std::make_unique<CFileTypeDlg>(nullptr, fileType));
  return dialogs;
}

class DialogTextsTest : public ServicesTest {};

TEST_F(DialogTextsTest, EveryLabelIsTheEnglishTextOfItsId) {
  for (const auto& dialog : AllDialogs()) {
    for (const auto& control : dialog->Controls()) {
      if (control->captionId == 0) continue;
      EXPECT_EQ(Message(control->captionId), control->label);
    }
  }
}

TEST_F(DialogTextsTest, EveryControlWithALabelHasAnId) {
  for (const auto& dialog : AllDialogs()) {
    for (const auto& control : dialog->Controls()) {
      // The sheet takes the platform's Apply button away before anybody sees it.
      const bool isShown = !control->label.empty() && control->label != u"Apply";
      EXPECT_TRUE(!isShown || control->captionId != 0) << ToUtf8(control->label);
    }
  }
}

TEST_F(DialogTextsTest, ADialogShowsItsTextsInTheInterfaceLanguage) {
  language.SetThreadInterfaceLanguage(1062);
  CSignaturePasswordDlg dialog(nullptr);

  dialog.Create();

  EXPECT_EQ(dialog.Title(), u"[su] $_Digital signature password_#");
  for (const auto& control : dialog.Controls()) {
    EXPECT_EQ(control->caption + control->text, u"[su] $_" + control->label + u"_#");
  }
}

}  // namespace
}  // namespace qutav::test
