#include <memory>

#include "ServicesTest.h"
#include "framework/CDialog.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/ProgressDlg.h"
#include "settings_ui/SettingsSheet.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "settings_ui/TimestampRetryDlg.h"
#include "win/InterfaceLanguage.h"

namespace qutav::test {
namespace {

// Everything that has labels of its own.
std::vector<std::unique_ptr<CDialog>> AllDialogs() {
  std::vector<std::unique_ptr<CDialog>> dialogs;
  dialogs.push_back(std::make_unique<CProgressDlg>(nullptr));
  dialogs.push_back(std::make_unique<CTimestampRetryDlg>(nullptr));
  dialogs.push_back(std::make_unique<CSignaturePasswordDlg>(nullptr));
  dialogs.push_back(std::make_unique<CSettingsPropSheet>(false, 0));
  dialogs.push_back(std::make_unique<CSettingsPropSheet>(true, 0));
  return dialogs;
}

class DialogTextsTest : public ServicesTest {};

TEST_F(DialogTextsTest, EveryLabelIsTheEnglishTextOfItsId) {
  for (const auto& dialog : AllDialogs()) {
    for (const Control& control : dialog->Controls()) {
      if (control.textId == 0) continue;
      EXPECT_EQ(Message(control.textId), control.label);
    }
  }
}

TEST_F(DialogTextsTest, EveryLabelWithoutAFieldHasAnId) {
  for (const auto& dialog : AllDialogs()) {
    for (const Control& control : dialog->Controls()) {
      const bool shown = control.kind == ControlKind::kText ||
                         control.kind == ControlKind::kButton ||
                         control.kind == ControlKind::kCheckBox;
      EXPECT_TRUE(!shown || control.textId != 0);
    }
  }
}

TEST_F(DialogTextsTest, TheLabelOfThePasswordFieldIsInTheCatalogueToo) {
  EXPECT_EQ(Message(texts::kPasswordLabel), u"Password:");
}

TEST_F(DialogTextsTest, ADialogShowsItsTextsInTheInterfaceLanguage) {
  language.SetThreadInterfaceLanguage(1062);
  CSignaturePasswordDlg dialog(nullptr);

  dialog.Create();

  EXPECT_EQ(dialog.Title(), u"[su] $_Digital signature password_#");
  for (const Control& control : dialog.Controls()) {
    if (control.textId == 0) continue;
    EXPECT_EQ(control.text, u"[su] $_" + control.label + u"_#");
  }
}

}  // namespace
}  // namespace qutav::test
