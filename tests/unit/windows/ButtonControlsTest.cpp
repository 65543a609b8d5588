// Buttons, check boxes and radio buttons in their windows.
#include "windows/SampleDialog.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

bool IsCheckedOnScreen(const Control& control) {
  return SendMessageW(WindowOf(control), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

class ButtonControlsTest : public ShownDialogTest {
 protected:
  SampleDialog dialog;
};

TEST_F(ButtonControlsTest, ChecksShowWhatTheModelSays) {
  dialog.box.checked = true;

  LookAt(dialog, [&] {
    EXPECT_TRUE(IsCheckedOnScreen(dialog.box));
    EXPECT_TRUE(IsCheckedOnScreen(dialog.release));
    EXPECT_FALSE(IsCheckedOnScreen(dialog.debug));

    RunEvent([&] {
      dialog.box.checked = false;
      dialog.group.Select(dialog.debug);
    });

    EXPECT_FALSE(IsCheckedOnScreen(dialog.box));
    EXPECT_FALSE(IsCheckedOnScreen(dialog.release));
    EXPECT_TRUE(IsCheckedOnScreen(dialog.debug));
  });
}

TEST_F(ButtonControlsTest, AClickRunsTheHandlerOnce) {
  int clicks = 0;
  dialog.button.onClick = [&] { ++clicks; };

  LookAt(dialog, [&] { Click(dialog.button); });

  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonControlsTest, AClickOnACheckBoxSwitchesItAndTellsItsHandler) {
  std::vector<bool> seen;
  dialog.box.onClick = [&] { seen.push_back(dialog.box.checked); };

  LookAt(dialog, [&] {
    Click(dialog.box);
    EXPECT_TRUE(IsCheckedOnScreen(dialog.box));
    Click(dialog.box);
    EXPECT_FALSE(IsCheckedOnScreen(dialog.box));
  });

  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(ButtonControlsTest, ACheckThatItsHandlerTakesBackIsNotShown) {
  dialog.box.onClick = [&] { dialog.box.checked = false; };

  LookAt(dialog, [&] {
    Click(dialog.box);

    EXPECT_FALSE(IsCheckedOnScreen(dialog.box));
  });
}

TEST_F(ButtonControlsTest, TheSpaceBarSwitchesTheCheckBoxWithTheFocus) {
  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.box));
                    Strike(VK_SPACE);
                  },
                  [&](HWND) { EXPECT_TRUE(dialog.box.checked); }});
}

TEST_F(ButtonControlsTest, AClickOfTheMouseSwitchesACheckBox) {
  LookAt(dialog, {[&](HWND) { ClickAt(WindowOf(dialog.box), 6, 6); },
                  [&](HWND) {
                    EXPECT_TRUE(dialog.box.checked);
                    EXPECT_EQ(GetFocus(), WindowOf(dialog.box));
                  }});
}

TEST_F(ButtonControlsTest, ACheckThatTheProgramSetsRunsNoHandler) {
  int clicks = 0;
  dialog.box.onClick = [&] { ++clicks; };
  dialog.debug.onClick = [&] { ++clicks; };

  LookAt(dialog, [&] {
    RunEvent([&] {
      dialog.box.checked = true;
      dialog.group.Select(dialog.debug);
    });
  });

  EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonControlsTest, AClickOnARadioButtonClearsTheOthers) {
  LookAt(dialog, [&] {
    Click(dialog.debug);

    EXPECT_FALSE(IsCheckedOnScreen(dialog.release));
    EXPECT_TRUE(IsCheckedOnScreen(dialog.debug));
  });

  EXPECT_TRUE(dialog.debug.checked);
  EXPECT_FALSE(dialog.release.checked);
}

TEST_F(ButtonControlsTest, TheArrowKeysChooseAmongRadioButtons) {
  std::vector<std::string> chosen;
  dialog.release.onClick = [&] { chosen.push_back("release"); };
  dialog.debug.onClick = [&] { chosen.push_back("debug"); };

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.release));
                    Strike(VK_DOWN);
                  },
                  [&](HWND) {
                    EXPECT_TRUE(dialog.debug.checked);
                    EXPECT_EQ(GetFocus(), WindowOf(dialog.debug));
                    Strike(VK_UP);
                  },
                  [&](HWND) { EXPECT_TRUE(dialog.release.checked); }});

  EXPECT_EQ(chosen, (std::vector<std::string>{"debug", "release"}));
}

TEST_F(ButtonControlsTest, TheArrowKeysPassOverADisabledRadioButton) {
  dialog.debug.enabled = false;

  LookAt(dialog, {[&](HWND) {
                    EXPECT_FALSE(IsWindowEnabled(WindowOf(dialog.debug)));
                    SetFocus(WindowOf(dialog.release));
                    Strike(VK_DOWN);
                  },
                  [&](HWND) {
                    EXPECT_TRUE(dialog.emulator.checked);
                    Strike(VK_DOWN);
                  },
                  [&](HWND) { EXPECT_TRUE(dialog.release.checked); }});
}

TEST_F(ButtonControlsTest, TabReachesTheCheckedRadioButton) {
  dialog.group.Select(dialog.debug);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.box));
                    Strike(VK_TAB);
                  },
                  [&](HWND) { EXPECT_EQ(GetFocus(), WindowOf(dialog.debug)); }});
}

TEST_F(ButtonControlsTest, TabReachesAnotherRadioButtonWhenTheCheckedOneIsDisabled) {
  dialog.release.enabled = false;

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.box));
                    Strike(VK_TAB);
                  },
                  [&](HWND) { EXPECT_EQ(GetFocus(), WindowOf(dialog.debug)); }});
}

TEST_F(ButtonControlsTest, TabPassesARadioGroupAtOnce) {
  LookAt(dialog, {[&](HWND) {
                    Click(dialog.debug);
                    SetFocus(WindowOf(dialog.box));
                    Strike(VK_TAB);
                    Strike(VK_TAB);
                  },
                  [&](HWND) { EXPECT_EQ(GetFocus(), WindowOf(dialog.browse)); }});
}

TEST_F(ButtonControlsTest, TabReachesARadioButtonWhenNoneIsCheckedAnyMore) {
  LookAt(dialog, {[&](HWND) {
                    RunEvent([&] { dialog.group.Select(-1); });
                    SetFocus(WindowOf(dialog.box));
                    Strike(VK_TAB);
                  },
                  [&](HWND) { EXPECT_EQ(GetFocus(), WindowOf(dialog.release)); }});
}

TEST_F(ButtonControlsTest, ACaptionThatAHandlerChangesIsShown) {
  LookAt(dialog, [&] {
    RunEvent([&] {
      dialog.box.text = u"This & that";
      dialog.button.text = u"Go on";
    });

    EXPECT_EQ(TextOf(WindowOf(dialog.box)), u"This && that");
    EXPECT_EQ(TextOf(WindowOf(dialog.button)), u"Go on");
  });
}

TEST_F(ButtonControlsTest, ADisabledButtonIsNotClicked) {
  int clicks = 0;
  dialog.button.onClick = [&] { ++clicks; };
  dialog.button.enabled = false;

  LookAt(dialog, {[&](HWND) { ClickAt(WindowOf(dialog.button), 6, 6); }, [&](HWND) {}});

  EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonControlsTest, AMnemonicSwitchesACheckBox) {
  LookAt(dialog, {[&](HWND) {
                    const std::u16string text = TextOf(WindowOf(dialog.box));
                    const std::size_t mark = text.find(u'&');
                    ASSERT_NE(mark, text.npos);
                    StrikeWith(VK_MENU, LOBYTE(VkKeyScanW(static_cast<WCHAR>(text[mark + 1]))));
                  },
                  [&](HWND) {
                    EXPECT_TRUE(dialog.box.checked);
                    EXPECT_EQ(GetFocus(), WindowOf(dialog.box));
                  }});
}

}  // namespace
}  // namespace qutav::test
