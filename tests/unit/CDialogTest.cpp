#include <stdexcept>

#include "ServicesTest.h"
#include "framework/CDialog.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What a class between the framework and a dialog can see and do.
class ProbeDialog : public CDialog {
 public:
  ProbeDialog() : CDialog(u"ProbeDialog", 8002, nullptr) {}
  using CDialog::Add;
  using CDialog::AddAfter;
  using CDialog::KillTimer;
  using CDialog::MoveTo;
  using CDialog::Remove;
  using CDialog::Repaint;
  using CDialog::SetTimer;
  std::vector<std::u16string> Labels() const {
    std::vector<std::u16string> labels;
    for (const auto& control : Controls()) labels.push_back(control->label);
    return labels;
  }
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

TEST_F(CDialogTest, ControlsStandInTheOrderInWhichTheyWereAdded) {
  dialog.Add<Edit>(u"first");
  dialog.Add<Button>(u"second");

  EXPECT_THAT(dialog.Labels(), ElementsAre(u"first", u"second"));
}

TEST_F(CDialogTest, AControlCanBeAddedBehindAnother) {
  const auto& first = dialog.Add<Edit>(u"first");
  const auto& last = dialog.Add<Edit>(u"last");

  const auto& button = dialog.AddAfter<Button>(first, u"between", 9002);
  dialog.AddAfter<CheckBox>(last, u"behind");

  EXPECT_THAT(dialog.Labels(), ElementsAre(u"first", u"between", u"last", u"behind"));
  EXPECT_EQ(button.text, u"Cancel");
}

TEST_F(CDialogTest, AControlCanBeTakenAway) {
  dialog.Add<Edit>(u"first");
  const auto& second = dialog.Add<Edit>(u"second");
  dialog.Add<Edit>(u"third");

  dialog.Remove(second);

  EXPECT_THAT(dialog.Labels(), ElementsAre(u"first", u"third"));
}

TEST_F(CDialogTest, ATimerRunsUntilItIsKilled) {
  dialog.SetTimer(1, std::chrono::milliseconds(10));
  dialog.SetTimer(2, std::chrono::milliseconds(20));
  dialog.SetTimer(1, std::chrono::milliseconds(30));
  EXPECT_EQ(dialog.Timers().at(1), std::chrono::milliseconds(30));

  dialog.KillTimer(1);

  EXPECT_EQ(dialog.Timers().size(), 1u);
  EXPECT_TRUE(dialog.Timers().contains(2));
}

TEST_F(CDialogTest, IsCreatedUntilItIsDestroyed) {
  EXPECT_FALSE(dialog.IsCreated());

  dialog.Create();
  EXPECT_TRUE(dialog.IsCreated());

  dialog.Destroy();
  EXPECT_FALSE(dialog.IsCreated());
}

TEST_F(CDialogTest, StandsWhereTheFrontEndWantsItUnlessItMovesItself) {
  EXPECT_FALSE(dialog.IsPlaced());

  dialog.MoveTo(-5, 40);

  EXPECT_TRUE(dialog.IsPlaced());
  EXPECT_EQ(dialog.Left(), -5);
  EXPECT_EQ(dialog.Top(), 40);
}

TEST_F(CDialogTest, ARepaintingGoesToTheFrontEnd) {
  dialog.Repaint();

  EXPECT_THAT(frontEnd.repainted, ElementsAre(u"ProbeDialog"));
}

TEST_F(CDialogTest, AnEventThatGoesWellShowsNothing) {
  bool ran = false;

  CDialog::Dispatch([&] { ran = true; });

  EXPECT_TRUE(ran);
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(CDialogTest, WhatNobodyHasCaughtIsShownAsAWarning) {
  CDialog::Dispatch([] { throw std::out_of_range("invalid string position"); });

  ASSERT_EQ(frontEnd.messages.size(), 1u);
  const ShownMessage& shown = frontEnd.messages.front();
  EXPECT_EQ(shown.title, u"Zenvoka Kestrow");
  EXPECT_EQ(shown.text, u"Unknown error.\n\ninvalid string position");
  EXPECT_EQ(shown.icon, MessageIcon::kWarning);
  EXPECT_EQ(shown.buttons, MessageButtons::kOk);
  EXPECT_EQ(shown.owner, frontEnd.focus);
}

TEST_F(CDialogTest, WhatIsNoExceptionOfTheLanguageIsShownWithoutItsText) {
  CDialog::Dispatch([] { throw 5; });

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Unknown error."));
}

TEST_F(CDialogTest, TheDialogGoesOnAfterAnEventThatFailed) {
  auto& bad = dialog.Add<Button>(u"Bad");
  bad.onClick = [] { throw std::runtime_error("bad"); };
  auto& good = dialog.Add<Button>(u"Good");
  good.onClick = [this] { dialog.EndDialog(7); };
  dialog.Create();

  CDialog::Dispatch([&] { bad.Click(); });
  EXPECT_FALSE(dialog.HasEnded());

  CDialog::Dispatch([&] { good.Click(); });
  EXPECT_EQ(dialog.Result(), 7);
  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Unknown error.\n\nbad"));
}

}  // namespace
}  // namespace qutav::test
