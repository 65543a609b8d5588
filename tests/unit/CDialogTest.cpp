#include "ServicesTest.h"
#include "framework/CDialog.h"

namespace qutav::test {
namespace {

// What a class between the framework and a dialog can see and do.
class ProbeDialog : public CDialog {
 public:
  ProbeDialog() : CDialog(u"ProbeDialog", 8002, nullptr) {}
  using CDialog::Add;
  using CDialog::SetTimer;
  std::vector<std::string> calls;

 protected:
  void OnCreate() override { calls.push_back("create"); }
  bool OnInitDialog() override {
    calls.push_back("initialise");
    return CDialog::OnInitDialog();
  }
  void OnDestroy() override { calls.push_back(Timers().empty() ? "destroy" : "destroy first"); }
};

class CDialogTest : public ServicesTest {
 protected:
  ProbeDialog dialog;
};

TEST_F(CDialogTest, RunsFromItsCreationToItsDestruction) {
  frontEnd.onDialog = [](CDialog& shown) { shown.EndDialog(5); };

  EXPECT_EQ(dialog.DoModal(), 5);

  EXPECT_THAT(dialog.calls, ::testing::ElementsAre("create", "initialise", "destroy"));
}

TEST_F(CDialogTest, TimersGoAfterTheDialogsOwnClearing) {
  dialog.Create();
  dialog.SetTimer(1, std::chrono::milliseconds(10));

  dialog.Destroy();

  EXPECT_EQ(dialog.calls.back(), "destroy first");
  EXPECT_TRUE(dialog.Timers().empty());
}

TEST_F(CDialogTest, OkAndCancelEndItWithTheirNumbers) {
  dialog.OnOK();
  EXPECT_EQ(dialog.Result(), 1);

  dialog.OnCancel();
  EXPECT_EQ(dialog.Result(), 2);
}

TEST_F(CDialogTest, ADialogThatIsShownAgainHasNotEnded) {
  dialog.OnOK();

  dialog.Create();

  EXPECT_FALSE(dialog.HasEnded());
}

TEST_F(CDialogTest, TitleAndTextsComeFromTheCatalogue) {
  const auto& button = dialog.Add<Button>(u"Cancel", 9002);

  EXPECT_EQ(dialog.Title(), u"Signing TAV with certificate");
  EXPECT_EQ(button.text, u"Cancel");
}

TEST_F(CDialogTest, NothingIsLookedUpOnceADialogRuns) {
  dialog.Add<Button>(u"Cancel", 9002);
  language.capacities.clear();

  dialog.DoModal();

  EXPECT_TRUE(language.capacities.empty());
}

TEST_F(CDialogTest, AFieldToFillStartsEmptyAndKeepsWhatWasTyped) {
  auto& field = dialog.Add<Edit>(u"Password:", 9021);
  EXPECT_EQ(field.caption, u"Password:");
  EXPECT_EQ(field.text, u"");
  field.Type(u"typed");

  dialog.Create();

  EXPECT_EQ(field.text, u"typed");
}

}  // namespace
}  // namespace qutav::test
