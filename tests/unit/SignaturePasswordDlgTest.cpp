#include "ServicesTest.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

class SignaturePasswordDlgTest : public ServicesTest {
 protected:
  // The result of the dialog when its user fills it in so and presses that button.
  int Run(const std::u16string& password, bool remember, const std::u16string& button) {
    frontEnd.onDialog = [=](CDialog& dialog) {
      Find<Edit>(dialog, u"Password:").Type(password);
      if (remember) Find<CheckBox>(dialog, u"Remember password").Click();
      EXPECT_TRUE(PressButton(dialog, button));
    };
    return CSignaturePasswordDlg(nullptr).DoModal();
  }
};

TEST_F(SignaturePasswordDlgTest, OkStoresThePasswordAndTheMark) {
  EXPECT_EQ(Run(u"secret", true, u"OK"), 1);

  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"secret");
  EXPECT_EQ(SettingsGet(keys::kRememberPassword), u"true");
}

TEST_F(SignaturePasswordDlgTest, OkWithoutTheMarkStoresFalse) {
  SettingsSet(keys::kRememberPassword, u"true");

  EXPECT_EQ(Run(u"secret", false, u"OK"), 1);

  EXPECT_EQ(SettingsGet(keys::kRememberPassword), u"false");
}

TEST_F(SignaturePasswordDlgTest, OkWithAnEmptyFieldStoresAnEmptyPassword) {
  SettingsSet(keys::kCertificatePassword, u"old");

  EXPECT_EQ(Run(u"", false, u"OK"), 1);

  EXPECT_TRUE(SettingsMap.contains(keys::kCertificatePassword));
  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"");
}

TEST_F(SignaturePasswordDlgTest, CancelStoresNothing) {
  EXPECT_EQ(Run(u"secret", true, u"Cancel"), 2);

  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePassword));
  EXPECT_FALSE(SettingsMap.contains(keys::kRememberPassword));
}

TEST_F(SignaturePasswordDlgTest, FieldsStartEmptyWhateverIsStored) {
  SettingsSet(keys::kCertificatePassword, u"old");
  SettingsSet(keys::kRememberPassword, u"true");
  CSignaturePasswordDlg dialog(nullptr);

  dialog.Create();

  EXPECT_EQ(Find<Edit>(dialog, u"Password:").text, u"");
  EXPECT_FALSE(Find<CheckBox>(dialog, u"Remember password").checked);
}

TEST_F(SignaturePasswordDlgTest, ShowsItsFieldsUnderItsTitle) {
  CSignaturePasswordDlg dialog(nullptr);

  dialog.Create();

  EXPECT_EQ(dialog.Title(), u"Digital signature password");
  std::vector<std::u16string> labels;
  for (const auto& control : dialog.Controls()) labels.push_back(control->label);
  EXPECT_THAT(labels, ElementsAre(u"Password:", u"Remember password", u"OK", u"Cancel"));
}

}  // namespace
}  // namespace qutav::test
