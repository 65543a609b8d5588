// Check boxes, radio buttons and plain buttons.
#include <gtest/gtest.h>

#include "framework/Control.h"

namespace qutav::test {
namespace {

class RadioGroupTest : public ::testing::Test {
 protected:
  RadioGroupTest() {
    group.Add(first);
    group.Add(second);
    group.Add(third);
  }
  RadioButton first;
  RadioButton second;
  RadioButton third;
  RadioGroup group;
};

TEST(ControlTest, ANewControlIsEnabledVisibleAndEmpty) {
  const Edit edit;

  EXPECT_TRUE(edit.enabled);
  EXPECT_TRUE(edit.visible);
  EXPECT_EQ(edit.text, u"");
  EXPECT_EQ(edit.caption, u"");
  EXPECT_EQ(edit.captionId, 0u);
}

TEST(ControlTest, TypingReplacesTheText) {
  Edit edit;
  edit.text = u"old";

  edit.Type(u"new");

  EXPECT_EQ(edit.text, u"new");
}

TEST(ControlTest, AClickRunsTheHandler) {
  Button button;
  int clicks = 0;
  button.onClick = [&] { ++clicks; };

  button.Click();
  button.Click();

  EXPECT_EQ(clicks, 2);
}

TEST(ControlTest, AButtonWithoutAHandlerCanBeClicked) {
  Button button;

  EXPECT_NO_THROW(button.Click());
}

TEST(ControlTest, ACheckBoxSwitchesAtEachClickBeforeItsHandlerRuns) {
  CheckBox box;
  std::vector<bool> seen;
  box.onClick = [&] { seen.push_back(box.checked); };

  box.Click();
  box.Click();

  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST(ControlTest, ARadioButtonOfNoGroupOnlyRunsItsHandler) {
  RadioButton button;
  bool clicked = false;
  button.onClick = [&] { clicked = true; };

  button.Click();

  EXPECT_TRUE(clicked);
  EXPECT_FALSE(button.checked);
}

TEST_F(RadioGroupTest, StartsWithNoneChecked) { EXPECT_EQ(group.Selected(), -1); }

TEST_F(RadioGroupTest, SelectingOneClearsTheOthers) {
  group.Select(0);
  group.Select(2);

  EXPECT_FALSE(first.checked);
  EXPECT_FALSE(second.checked);
  EXPECT_TRUE(third.checked);
  EXPECT_EQ(group.Selected(), 2);
}

TEST_F(RadioGroupTest, AButtonCanBeSelectedByItself) {
  group.Select(0);

  group.Select(second);

  EXPECT_EQ(group.Selected(), 1);
  EXPECT_FALSE(first.checked);
}

TEST_F(RadioGroupTest, AnIndexWithoutAButtonClearsAll) {
  for (const int index : {-1, 3}) {
    group.Select(1);

    group.Select(index);

    EXPECT_EQ(group.Selected(), -1) << index;
  }
}

TEST_F(RadioGroupTest, AClickChecksTheButtonBeforeItsHandlerRuns) {
  group.Select(0);
  int seen = -1;
  second.onClick = [&] { seen = group.Selected(); };

  second.Click();

  EXPECT_EQ(seen, 1);
}

TEST_F(RadioGroupTest, AClickOnTheCheckedButtonRunsItsHandlerAgain) {
  group.Select(1);
  int clicks = 0;
  second.onClick = [&] { ++clicks; };

  second.Click();

  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(group.Selected(), 1);
}

TEST_F(RadioGroupTest, SelectingByTheProgramRunsNoHandler) {
  int clicks = 0;
  second.onClick = [&] { ++clicks; };

  group.Select(1);
  group.Select(second);

  EXPECT_EQ(clicks, 0);
}

TEST_F(RadioGroupTest, ADisabledButtonCanBeTheCheckedOne) {
  group.At(2).enabled = false;

  group.Select(2);

  EXPECT_EQ(group.Selected(), 2);
  EXPECT_TRUE(first.enabled);
}

TEST_F(RadioGroupTest, KnowsItsButtonsInOrder) {
  EXPECT_EQ(group.Buttons(), (std::vector<RadioButton*>{&first, &second, &third}));
  EXPECT_EQ(&group.At(1), &second);
  EXPECT_EQ(second.group, &group);
}

}  // namespace
}  // namespace qutav::test
