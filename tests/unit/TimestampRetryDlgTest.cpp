#include "ServicesTest.h"
#include "settings_ui/TimestampRetryDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

class TimestampRetryDlgTest : public ServicesTest {
 protected:
  // The result of the dialog when its user presses that button.
  int ResultOf(const std::u16string& button) {
    frontEnd.onDialog = [=](CDialog& dialog) { EXPECT_TRUE(PressButton(dialog, button)); };
    return CTimestampRetryDlg(nullptr).DoModal();
  }
};

TEST_F(TimestampRetryDlgTest, RetryGives1) { EXPECT_EQ(ResultOf(u"Retry"), 1); }

TEST_F(TimestampRetryDlgTest, DisablingTimestampingGives12) {
  EXPECT_EQ(ResultOf(u"Disable Timestamping"), 12);
}

TEST_F(TimestampRetryDlgTest, CancelGives2) { EXPECT_EQ(ResultOf(u"Cancel"), 2); }

TEST_F(TimestampRetryDlgTest, TheDefaultButtonIsRetry) {
  frontEnd.onDialog = [](CDialog& dialog) { dialog.OnOK(); };

  EXPECT_EQ(CTimestampRetryDlg(nullptr).DoModal(), 1);
}

TEST_F(TimestampRetryDlgTest, TellsTheErrorAndTheConsequenceBeforeItsButtons) {
  CTimestampRetryDlg dialog(nullptr);

  dialog.Create();

  EXPECT_EQ(dialog.Title(), u"Zenvoka Quorl Professional");
  std::vector<std::u16string> texts;
  for (const auto& control : dialog.Controls()) texts.push_back(control->text);
  EXPECT_THAT(texts,
              ElementsAre(u"There was an error connecting to the timestamp server. You may not "
                          u"have a connection to the network, or the server itself may have a "
                          u"problem.",
                          u"If you choose to disable timestamping, the TAV application will fail "
                          u"to install when the digital certificate expires.",
                          u"Disable Timestamping", u"Retry", u"Cancel"));
}

TEST_F(TimestampRetryDlgTest, OnlyRetryIsMarkedAsTheDefaultButton) {
  CTimestampRetryDlg dialog(nullptr);

  EXPECT_FALSE(Find<Button>(dialog, u"Disable Timestamping").isDefault);
  EXPECT_TRUE(Find<Button>(dialog, u"Retry").isDefault);
  EXPECT_FALSE(Find<Button>(dialog, u"Cancel").isDefault);
}

}  // namespace
}  // namespace qutav::test
