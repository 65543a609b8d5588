#include "AllDialogs.h"
#include "ServicesTest.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav::test {
namespace {

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
