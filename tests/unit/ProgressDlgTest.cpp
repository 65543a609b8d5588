#include "ServicesTest.h"
#include "packaging/PublishCancelled.h"
#include "settings_ui/ProgressDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

constexpr CDialog::TimerId kTimer = 667567;

class ProgressDlgTest : public ServicesTest {
 protected:
  ProgressDlgTest() { dialog.SetDoneFlag(&done); }

  const ProgressBar& Bar() const { return Find<ProgressBar>(dialog, u""); }
  void ExpectPlace(int left, int top) {
    dialog.Create();

    EXPECT_TRUE(dialog.IsPlaced());
    EXPECT_EQ(dialog.Left(), left);
    EXPECT_EQ(dialog.Top(), top);
  }

  PolledByte done{0};
  CProgressDlg dialog{nullptr};
};

TEST_F(ProgressDlgTest, ShowsATextABarAndCancelUnderNoTitle) {
  dialog.Create();

  ASSERT_EQ(dialog.Controls().size(), 3u);
  EXPECT_EQ(Find<Label>(dialog, u"Publishing ...").text, u"Publishing ...");
  EXPECT_EQ(dialog.Controls()[1].get(), &Bar());
  EXPECT_EQ(Find<Button>(dialog, u"Cancel").text, u"Cancel");
  EXPECT_EQ(dialog.Title(), u"");
}

TEST_F(ProgressDlgTest, TicksOnceASecond) {
  dialog.Create();

  EXPECT_THAT(dialog.Timers(), ElementsAre(Pair(kTimer, std::chrono::milliseconds(1000))));
}

TEST_F(ProgressDlgTest, ATickBeforeTheWorkIsDoneChangesNothing) {
  dialog.Create();

  dialog.OnTimer(kTimer);

  EXPECT_FALSE(dialog.HasEnded());
  EXPECT_EQ(dialog.Timers().size(), 1u);
}

TEST_F(ProgressDlgTest, AWorkerThatEndsWithinTheFirstSecondLeavesTheDialogOpenUntilTheTick) {
  dialog.Create();

  done = 1;
  EXPECT_FALSE(dialog.HasEnded());
  dialog.OnTimer(kTimer);

  EXPECT_TRUE(dialog.HasEnded());
}

TEST_F(ProgressDlgTest, TheTickThatFindsTheWorkDoneEndsTheDialogWith0AndTheTimer) {
  dialog.EndDialog(7);
  dialog.Create();
  done = 1;

  dialog.OnTimer(kTimer);

  EXPECT_EQ(dialog.Result(), 0);
  EXPECT_TRUE(dialog.Timers().empty());
  EXPECT_FALSE(dialog.IsCancelled());
  EXPECT_EQ(PublishCancelled, 0);
}

TEST_F(ProgressDlgTest, WithoutADoneFlagTicksDoNothing) {
  dialog.SetDoneFlag(nullptr);
  dialog.Create();

  dialog.OnTimer(kTimer);

  EXPECT_FALSE(dialog.HasEnded());
}

TEST_F(ProgressDlgTest, CancelAsksTheWorkToStopInBothWaysAndCloses) {
  dialog.Create();
  EXPECT_FALSE(dialog.IsCancelled());

  PressButton(dialog, u"Cancel");

  EXPECT_TRUE(dialog.IsCancelled());
  EXPECT_EQ(PublishCancelled, 1);
  EXPECT_EQ(done, 1);
  EXPECT_TRUE(dialog.HasEnded());
  EXPECT_EQ(dialog.Result(), kIdCancel);
}

TEST_F(ProgressDlgTest, CancelDisablesAndHidesTheBar) {
  dialog.Create();
  EXPECT_TRUE(Bar().enabled);
  EXPECT_TRUE(Bar().visible);

  PressButton(dialog, u"Cancel");

  EXPECT_FALSE(Bar().enabled);
  EXPECT_FALSE(Bar().visible);
}

TEST_F(ProgressDlgTest, CancelWithoutADoneFlagStillCloses) {
  dialog.SetDoneFlag(nullptr);
  dialog.Create();

  PressButton(dialog, u"Cancel");

  EXPECT_EQ(dialog.Result(), kIdCancel);
  EXPECT_EQ(PublishCancelled, 1);
}

TEST_F(ProgressDlgTest, CancelAfterTheWorkIsDoneButBeforeTheTickEndsThroughCancel) {
  dialog.Create();
  done = 1;

  PressButton(dialog, u"Cancel");

  EXPECT_EQ(dialog.Result(), kIdCancel);
  EXPECT_EQ(PublishCancelled, 1);
}

TEST_F(ProgressDlgTest, ANewDialogForgetsTheCancellingOfTheLastRun) {
  PublishCancelled = 1;

  const CProgressDlg next(nullptr);

  EXPECT_EQ(PublishCancelled, 0);
}

TEST_F(ProgressDlgTest, AfterItsWindowHasGoneTheCallersByteIsNotTouched) {
  dialog.Create();

  dialog.Destroy();
  dialog.OnCancel();

  EXPECT_EQ(done, 0);
}

TEST_F(ProgressDlgTest, IsCentredOnALargerActiveWindow) {
  frontEnd.active = {100, 50, 1000, 550};
  frontEnd.dialogSize = {0, 0, 301, 101};

  ExpectPlace(400, 250);
}

TEST_F(ProgressDlgTest, IsCentredOnTheDesktopWhenTheActiveWindowIsNarrower) {
  frontEnd.active = {100, 50, 350, 800};
  frontEnd.desktop = {0, 0, 1920, 1080};
  frontEnd.dialogSize = {0, 0, 300, 100};

  ExpectPlace(810, 490);
}

TEST_F(ProgressDlgTest, IsCentredOnTheDesktopWhenTheActiveWindowIsLower) {
  frontEnd.active = {100, 50, 900, 120};
  frontEnd.desktop = {0, 0, 1920, 1080};
  frontEnd.dialogSize = {0, 0, 300, 100};

  ExpectPlace(810, 490);
}

TEST_F(ProgressDlgTest, IsCentredOnTheDesktopWhenTheActiveWindowIsJustAsLarge) {
  frontEnd.desktop = {0, 0, 1920, 1080};
  frontEnd.dialogSize = {0, 0, 300, 100};

  frontEnd.active = {100, 50, 400, 800};
  ExpectPlace(810, 490);
  frontEnd.active = {100, 50, 800, 150};
  ExpectPlace(810, 490);
}

TEST_F(ProgressDlgTest, TheBarRunsTo100AndMovesEvery50Milliseconds) {
  dialog.Create();

  EXPECT_EQ(Bar().rangeEnd, 100);
  EXPECT_EQ(Bar().marqueeStep, std::chrono::milliseconds(50));
}

}  // namespace
}  // namespace qutav::test
