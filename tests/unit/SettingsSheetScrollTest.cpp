// A sheet that is taller than the screen.

#include "FakeServices.h"
#include "ServicesTest.h"
#include "settings_ui/SettingsSheetScroll.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

class SettingsSheetScrollTest : public ::testing::Test {
 protected:
  // A work area that ends at 600 and a sheet of this height.
  void SetUpSheet(int height) {
    window.workArea = {0, 0, 1024, 600};
    window.window = {50, 20, 550, 20 + height};
    scroll.SetupScrolling(window);
  }
  int PositionAfter(ScrollCode code, int thumbPos = 0) {
    scroll.ScrollByBar(window, code, thumbPos);
    return scroll.scrollPos;
  }

  FakeSheetWindow window;
  CSettingsPropSheetScroll scroll;
};

TEST_F(SettingsSheetScrollTest, ASheetNoTallerThanTheWorkAreasBottomStaysAsItIs) {
  SetUpSheet(600);

  EXPECT_FALSE(window.resizedTo.has_value());
  EXPECT_FALSE(window.scrollBar.has_value());
  EXPECT_EQ(scroll.scrollMax, 0);
}

TEST_F(SettingsSheetScrollTest, WithoutAScrollBarTheWheelLeavesThePositionAtZero) {
  SetUpSheet(500);

  scroll.ScrollByWheel(window, -120);

  EXPECT_EQ(scroll.scrollPos, 0);
}

TEST_F(SettingsSheetScrollTest, ATallerSheetIsCutAboveTheBottomAndWidenedByItsBar) {
  SetUpSheet(700);

  EXPECT_EQ(window.resizedTo, std::make_pair(517, 590));
  EXPECT_EQ(scroll.scrollPos, 0);
  EXPECT_EQ(scroll.scrollMax, 110);
  ASSERT_TRUE(window.scrollBar.has_value());
  EXPECT_EQ(window.scrollBar->minimum, 0);
  EXPECT_EQ(window.scrollBar->maximum, 700);
  EXPECT_EQ(window.scrollBar->page, 590);
  EXPECT_EQ(window.scrollBar->position, 0);
}

TEST_F(SettingsSheetScrollTest, TheBottomCountsWhereverTheWorkAreaBegins) {
  window.workArea = {0, 300, 1024, 700};
  window.window = {0, 0, 500, 650};

  scroll.SetupScrolling(window);

  EXPECT_FALSE(window.resizedTo.has_value());
}

TEST_F(SettingsSheetScrollTest, EveryCodeOfTheBarMovesByItsOwnDistance) {
  SetUpSheet(1600);  // scrollMax 1010

  EXPECT_EQ(PositionAfter(ScrollCode::kPageDown), 100);
  EXPECT_EQ(PositionAfter(ScrollCode::kLineDown), 125);
  EXPECT_EQ(PositionAfter(ScrollCode::kLineUp), 100);
  EXPECT_EQ(PositionAfter(ScrollCode::kThumbTrack, 480), 480);
  EXPECT_EQ(PositionAfter(ScrollCode::kPageUp), 380);
  EXPECT_EQ(PositionAfter(ScrollCode::kEndScroll), 380);
  EXPECT_EQ(PositionAfter(ScrollCode::kBottom), 1010);
  EXPECT_EQ(PositionAfter(ScrollCode::kTop), 0);
}

TEST_F(SettingsSheetScrollTest, LettingTheThumbGoMovesNothing) {
  SetUpSheet(1600);
  PositionAfter(ScrollCode::kThumbTrack, 480);

  EXPECT_EQ(PositionAfter(ScrollCode::kThumbPosition, 900), 480);
  EXPECT_EQ(window.scrolled.back(), 0);
}

TEST_F(SettingsSheetScrollTest, BarAndWheelStopAtBothEnds) {
  SetUpSheet(700);

  EXPECT_EQ(PositionAfter(ScrollCode::kLineUp), 0);
  EXPECT_EQ(PositionAfter(ScrollCode::kThumbTrack, 5000), 110);
  scroll.ScrollByWheel(window, -120);
  EXPECT_EQ(scroll.scrollPos, 110);
  scroll.ScrollByWheel(window, 120);
  EXPECT_EQ(scroll.scrollPos, 0);
}

TEST_F(SettingsSheetScrollTest, TheContentMovesAgainstThePositionWithoutARedrawOfTheBar) {
  SetUpSheet(700);

  PositionAfter(ScrollCode::kPageDown);
  PositionAfter(ScrollCode::kLineUp);

  EXPECT_THAT(window.scrolled, ElementsAre(-100, 25));
  EXPECT_THAT(window.scrollPositions, ElementsAre(Pair(100, false), Pair(75, false)));
}

TEST_F(SettingsSheetScrollTest, ANotchOfTheWheelIsAsManyPixelsAndRedrawsTheBar) {
  SetUpSheet(1600);

  scroll.ScrollByWheel(window, -120);
  scroll.ScrollByWheel(window, 50);

  EXPECT_THAT(window.scrolled, ElementsAre(-120, 50));
  EXPECT_THAT(window.scrollPositions, ElementsAre(Pair(120, true), Pair(70, true)));
}

TEST_F(SettingsSheetScrollTest, ACodeOfNoNameMovesNothing) {
  SetUpSheet(1600);
  PositionAfter(ScrollCode::kPageDown);

  EXPECT_EQ(PositionAfter(static_cast<ScrollCode>(42)), 100);
}

}  // namespace
}  // namespace qutav::test
