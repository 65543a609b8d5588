// Image buttons: the bitmap that is drawn, and how the buttons of a dialog light up.
#include <gtest/gtest.h>

#include "framework/CStretchBitmapButton.h"

namespace qutav::test {
namespace {

constexpr bool kHeldDown = true;
constexpr bool kUp = false;

class CStretchBitmapButtonTest : public ::testing::Test {
 protected:
  CStretchBitmapButton button;
};

TEST_F(CStretchBitmapButtonTest, DrawsTheNormalBitmap) {
  EXPECT_EQ(button.DrawItem(kUp), ButtonBitmap::kNormal);
}

TEST_F(CStretchBitmapButtonTest, HeldDownDrawsTheSelectedBitmapBeforeAllOthers) {
  button.focused = true;
  button.enabled = false;

  EXPECT_EQ(button.DrawItem(kHeldDown), ButtonBitmap::kSelected);
}

TEST_F(CStretchBitmapButtonTest, FocusedDrawsTheFocusedBitmapBeforeTheDisabledOne) {
  button.focused = true;
  EXPECT_EQ(button.DrawItem(kUp), ButtonBitmap::kFocused);

  button.enabled = false;
  EXPECT_EQ(button.DrawItem(kUp), ButtonBitmap::kFocused);
}

TEST_F(CStretchBitmapButtonTest, DisabledDrawsTheDisabledBitmap) {
  button.enabled = false;

  EXPECT_EQ(button.DrawItem(kUp), ButtonBitmap::kDisabled);
}

TEST_F(CStretchBitmapButtonTest, AMissingBitmapGivesWayToTheNextThatFits) {
  button.focused = true;
  button.enabled = false;

  button.hasSelected = false;
  EXPECT_EQ(button.DrawItem(kHeldDown), ButtonBitmap::kFocused);

  button.hasFocused = false;
  EXPECT_EQ(button.DrawItem(kHeldDown), ButtonBitmap::kDisabled);

  button.hasDisabled = false;
  EXPECT_EQ(button.DrawItem(kHeldDown), ButtonBitmap::kNormal);
}

TEST_F(CStretchBitmapButtonTest, WithoutANormalBitmapNothingIsDrawn) {
  button.hasNormal = false;
  button.focused = true;

  EXPECT_EQ(button.DrawItem(kUp), ButtonBitmap::kNone);
  EXPECT_EQ(button.DrawItem(kHeldDown), ButtonBitmap::kNone);
}

TEST_F(CStretchBitmapButtonTest, AClickRunsTheHandler) {
  bool clicked = false;
  button.onClick = [&] { clicked = true; };

  button.Click();

  EXPECT_TRUE(clicked);
}

class HoverButtonsTest : public ::testing::Test {
 protected:
  HoverButtonsTest() {
    buttons.Add(browse);
    buttons.Add(remove);
  }
  CStretchBitmapButton browse;
  CStretchBitmapButton remove;
  CStretchBitmapButton stranger;
  Edit field;
  HoverButtons buttons;
};

TEST_F(HoverButtonsTest, TheButtonUnderTheMouseLightsUp) {
  buttons.OnMouseMove(&browse);

  EXPECT_TRUE(browse.focused);
  EXPECT_FALSE(remove.focused);
}

TEST_F(HoverButtonsTest, AMouseOverAnotherControlPutsAllOut) {
  buttons.OnMouseMove(&browse);

  buttons.OnMouseMove(&field);

  EXPECT_FALSE(browse.focused);
}

TEST_F(HoverButtonsTest, AMouseOverNoControlPutsAllOut) {
  buttons.OnMouseMove(&browse);
  buttons.OnMouseMove(&remove);

  buttons.OnMouseMove(nullptr);

  EXPECT_FALSE(browse.focused);
  EXPECT_FALSE(remove.focused);
}

TEST_F(HoverButtonsTest, AMouseThatGoesStraightToTheNextLeavesBothLit) {
  buttons.OnMouseMove(&browse);

  buttons.OnMouseMove(&remove);

  EXPECT_TRUE(browse.focused);
  EXPECT_TRUE(remove.focused);
}

TEST_F(HoverButtonsTest, AButtonThatIsNotOneOfTheseIsAControlLikeAnyOther) {
  buttons.OnMouseMove(&browse);

  buttons.OnMouseMove(&stranger);

  EXPECT_FALSE(browse.focused);
  EXPECT_FALSE(stranger.focused);
}

TEST_F(HoverButtonsTest, ALitButtonDrawsItsFocusedBitmap) {
  buttons.OnMouseMove(&remove);

  EXPECT_EQ(remove.DrawItem(kUp), ButtonBitmap::kFocused);
  EXPECT_EQ(browse.DrawItem(kUp), ButtonBitmap::kNormal);
}

}  // namespace
}  // namespace qutav::test
