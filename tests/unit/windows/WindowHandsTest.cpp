// A script's hands on the windows of a dialog.
#include "framework/windows/WindowHands.h"
#include "windows/SampleDialog.h"
#include "windows/ShownDialogs.h"

namespace qutav::test {
namespace {

class WindowHandsTest : public ShownDialogTest {
 protected:
  WindowHands hands;
  SampleDialog dialog;
};

TEST_F(WindowHandsTest, WhatTheyTypeReplacesTheTextInTheWindowAndInTheModel) {
  dialog.edit.text = u"before";
  dialog.editable.SetCurSel(0);

  LookAt(dialog, [&] {
    hands.Type(dialog.edit, u"after & later");
    hands.Type(dialog.editable, u"D:\\c.p12");

    EXPECT_EQ(dialog.edit.text, u"after & later");
    EXPECT_EQ(TextOf(WindowOf(dialog.edit)), u"after & later");
    EXPECT_EQ(dialog.editable.text, u"D:\\c.p12");
    EXPECT_EQ(dialog.editable.GetCurSel(), -1);
    EXPECT_EQ(TextOf(WindowOf(dialog.editable)), u"D:\\c.p12");
  });
}

TEST_F(WindowHandsTest, WhatTheyClickRunsItsHandler) {
  int clicks = 0;
  dialog.box.onClick = [&] { ++clicks; };
  dialog.browse.onClick = [&] { ++clicks; };

  LookAt(dialog, [&] {
    hands.Click(dialog.box);
    hands.Click(dialog.browse);
    hands.Click(dialog.debug);
  });

  EXPECT_EQ(clicks, 2);
  EXPECT_TRUE(dialog.box.checked);
  EXPECT_TRUE(dialog.debug.checked);
}

TEST_F(WindowHandsTest, TheRowThatTheyChooseIsReportedOnce) {
  int choices = 0;
  dialog.dropList.onSelectionEnd = [&] { ++choices; };
  dialog.listBox.onSelectionChange = [&] { ++choices; };

  LookAt(dialog, [&] {
    hands.Choose(dialog.dropList, 1);
    hands.Choose(dialog.listBox, 1);
    EXPECT_EQ(TextOf(WindowOf(dialog.dropList)), u"Portrait");
  });

  EXPECT_EQ(dialog.dropList.text, u"Portrait");
  EXPECT_EQ(dialog.listBox.GetCurSel(), 1);
  EXPECT_EQ(choices, 2);
}

TEST_F(WindowHandsTest, TheySwitchAndSelectRowsOfACheckList) {
  dialog.checkList.SetSelected(0, true);

  LookAt(dialog, [&] {
    hands.Toggle(dialog.checkList, 1);
    hands.Choose(dialog.checkList, 1);
  });

  EXPECT_TRUE(dialog.checkList.IsChecked(1));
  EXPECT_FALSE(dialog.checkList.Rows()[0].selected);
  EXPECT_TRUE(dialog.checkList.Rows()[1].selected);
}

}  // namespace
}  // namespace qutav::test
