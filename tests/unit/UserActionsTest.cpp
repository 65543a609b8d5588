#include "SampleControls.h"
#include "ServicesTest.h"
#include "framework/scripted/UserActions.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UserActionsTest : public ServicesTest {
 protected:
  bool Set(const std::u16string& label, const std::u16string& value) {
    return SetByUser(hands, dialog, label, value);
  }
  bool Select(const std::u16string& label, const std::u16string& row) {
    return SelectByUser(hands, dialog, label, row);
  }
  ModelHands hands;
  ControlsDialog dialog;
};

TEST_F(UserActionsTest, AControlIsFoundByItsEnglishLabel) {
  EXPECT_EQ(FindControl(dialog, u"Name:"), &dialog.edit);
  EXPECT_EQ(FindControl(dialog, u"name:"), nullptr);
  EXPECT_EQ(FindControl(dialog, u""), nullptr);
}

TEST_F(UserActionsTest, ARepeatedLabelIsCounted) {
  const auto& second = dialog.Add<Edit>(u"Name:");
  const auto& third = dialog.Add<Button>(u"Name:");

  EXPECT_EQ(FindControl(dialog, u"Name:"), &dialog.edit);
  EXPECT_EQ(FindControl(dialog, u"Name:#2"), &second);
  EXPECT_EQ(FindControl(dialog, u"Name:#3"), &third);
  EXPECT_EQ(FindControl(dialog, u"Name:#4"), nullptr);
}

TEST_F(UserActionsTest, ASignThatCountsNothingIsPartOfTheLabel) {
  const auto& sharp = dialog.Add<Edit>(u"C#");
  const auto& first = dialog.Add<Edit>(u"Name:#1");

  EXPECT_EQ(FindControl(dialog, u"C#"), &sharp);
  EXPECT_EQ(FindControl(dialog, u"Name:#1"), &first);
}

TEST_F(UserActionsTest, ATextIsTypedIntoAFieldAndAnEditableCombo) {
  EXPECT_TRUE(Set(u"Name:", u"Tr\u00E4ume"));
  EXPECT_TRUE(Set(u"Certificate:", u"D:\\new.p12"));

  EXPECT_EQ(dialog.edit.text, u"Tr\u00E4ume");
  EXPECT_EQ(dialog.editable.text, u"D:\\new.p12");
  EXPECT_EQ(dialog.editable.GetCurSel(), -1);
}

TEST_F(UserActionsTest, AFieldThatIsOnlyReadTakesNoText) {
  EXPECT_FALSE(Set(u"Path:", u"x"));

  EXPECT_EQ(dialog.fixed.text, u"as it stands");
}

TEST_F(UserActionsTest, ADropListTakesOnlyTheTextOfARow) {
  int ends = 0;
  dialog.dropList.onSelectionEnd = [&] { ++ends; };

  EXPECT_TRUE(Set(u"Orientation:", u"Portrait"));
  EXPECT_FALSE(Set(u"Orientation:", u"Upside down"));

  EXPECT_EQ(dialog.dropList.text, u"Portrait");
  EXPECT_EQ(ends, 1);
}

TEST_F(UserActionsTest, ACheckBoxIsClickedOnlyWhenItMustChange) {
  int clicks = 0;
  dialog.box.onClick = [&] { ++clicks; };

  EXPECT_TRUE(Set(u"Full screen", u"true"));
  EXPECT_TRUE(Set(u"Full screen", u"true"));
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(dialog.box.checked);

  EXPECT_TRUE(Set(u"Full screen", u"false"));
  EXPECT_EQ(clicks, 2);
  EXPECT_FALSE(dialog.box.checked);
}

TEST_F(UserActionsTest, ACheckBoxTakesNothingButTrueAndFalse) {
  EXPECT_FALSE(Set(u"Full screen", u"yes"));
  EXPECT_FALSE(Set(u"Full screen", u"True"));
  EXPECT_FALSE(Set(u"Full screen", u""));

  EXPECT_FALSE(dialog.box.checked);
}

TEST_F(UserActionsTest, ARadioButtonCanBeCheckedAndNotCleared) {
  int clicks = 0;
  dialog.debug.onClick = [&] { ++clicks; };

  EXPECT_TRUE(Set(u"Debug", u"true"));
  EXPECT_FALSE(Set(u"Debug", u"false"));

  EXPECT_EQ(dialog.group.Selected(), 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(UserActionsTest, ARowOfACheckListIsSwitchedByItsText) {
  int changes = 0;
  dialog.checkList.onChange = [&] { ++changes; };

  EXPECT_TRUE(Set(u"CAMERA", u"true"));
  EXPECT_THAT(dialog.checkList.CheckedRows(), ElementsAre(u"CAMERA"));
  const int afterOne = changes;
  EXPECT_GT(afterOne, 0);

  EXPECT_TRUE(Set(u"CAMERA", u"true"));
  EXPECT_EQ(changes, afterOne);

  EXPECT_TRUE(Set(u"CAMERA", u"false"));
  EXPECT_THAT(dialog.checkList.CheckedRows(), IsEmpty());
}

TEST_F(UserActionsTest, ARowOfACheckListTakesNothingButTrueAndFalse) {
  EXPECT_FALSE(Set(u"CAMERA", u"1"));
  EXPECT_FALSE(Set(u"camera", u"true"));

  EXPECT_THAT(dialog.checkList.CheckedRows(), IsEmpty());
}

TEST_F(UserActionsTest, AControlStandsBeforeARowOfTheSameText) {
  dialog.checkList.InsertRow(u"Full screen");

  EXPECT_TRUE(Set(u"Full screen", u"true"));

  EXPECT_TRUE(dialog.box.checked);
  EXPECT_THAT(dialog.checkList.CheckedRows(), IsEmpty());
}

TEST_F(UserActionsTest, ADisabledListsRowsCannotBeSwitched) {
  dialog.checkList.enabled = false;

  EXPECT_FALSE(Set(u"CAMERA", u"true"));

  EXPECT_THAT(dialog.checkList.CheckedRows(), IsEmpty());
}

TEST_F(UserActionsTest, WhatNobodyCanFillTakesNoValue) {
  for (const char16_t* label : {u"Heading", u"Sizes", u"Permissions", u"OK", u"Browse", u"Preview",
                                u"Progress", u"No such control"}) {
    EXPECT_FALSE(Set(label, u"true")) << ToUtf8(label);
  }
}

TEST_F(UserActionsTest, DisabledAndHiddenControlsTakeNoValue) {
  dialog.edit.enabled = false;
  dialog.box.visible = false;
  dialog.debug.enabled = false;
  dialog.dropList.enabled = false;

  EXPECT_FALSE(Set(u"Name:", u"x"));
  EXPECT_FALSE(Set(u"Full screen", u"true"));
  EXPECT_FALSE(Set(u"Debug", u"true"));
  EXPECT_FALSE(Set(u"Orientation:", u"Auto"));
  EXPECT_EQ(dialog.edit.text, u"");
  EXPECT_EQ(dialog.group.Selected(), 0);
}

TEST_F(UserActionsTest, ARowIsChosenByItsTextInEachKindOfList) {
  int ends = 0;
  int changes = 0;
  dialog.editable.onSelectionEnd = [&] { ++ends; };
  dialog.listBox.onSelectionChange = [&] { ++changes; };

  EXPECT_TRUE(Select(u"Certificate:", u"C:\\b.p12"));
  EXPECT_TRUE(Select(u"Orientation:", u"Portrait"));
  EXPECT_TRUE(Select(u"Sizes", u"48x48"));
  EXPECT_TRUE(Select(u"Permissions", u"CAMERA"));

  EXPECT_EQ(dialog.editable.GetCurSel(), 1);
  EXPECT_EQ(dialog.dropList.GetCurSel(), 1);
  EXPECT_EQ(dialog.listBox.GetCurSel(), 1);
  EXPECT_EQ(dialog.checkList.FirstSelected(), 1);
  EXPECT_THAT(dialog.checkList.CheckedRows(), IsEmpty());
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(changes, 1);
}

TEST_F(UserActionsTest, ARowThatAListDoesNotHaveCannotBeChosen) {
  for (const char16_t* list : {u"Certificate:", u"Orientation:", u"Sizes", u"Permissions"}) {
    EXPECT_FALSE(Select(list, u"none of these")) << ToUtf8(list);
  }
}

TEST_F(UserActionsTest, RowsAreChosenInListsAloneAndInThoseThatAreEnabled) {
  dialog.listBox.enabled = false;

  EXPECT_FALSE(Select(u"Sizes", u"48x48"));
  EXPECT_FALSE(Select(u"Name:", u""));
  EXPECT_FALSE(Select(u"Full screen", u"Full screen"));
  EXPECT_FALSE(Select(u"No such control", u"48x48"));
  EXPECT_EQ(dialog.listBox.GetCurSel(), -1);
}

TEST_F(UserActionsTest, ButtonsAndImageButtonsCanBePressed) {
  EXPECT_EQ(FindButton(dialog, u"OK"), &dialog.button);
  EXPECT_EQ(FindButton(dialog, u"Browse"), &dialog.browse);
}

TEST_F(UserActionsTest, SwitchesAndOtherControlsAreNoButtons) {
  for (const char16_t* label : {u"Full screen", u"Debug", u"Name:", u"Sizes", u"No such control"}) {
    EXPECT_EQ(FindButton(dialog, label), nullptr) << ToUtf8(label);
  }
}

TEST_F(UserActionsTest, ADisabledOrHiddenButtonCannotBePressed) {
  dialog.button.enabled = false;
  dialog.browse.visible = false;

  EXPECT_EQ(FindButton(dialog, u"OK"), nullptr);
  EXPECT_EQ(FindButton(dialog, u"Browse"), nullptr);
}

}  // namespace
}  // namespace qutav::test
