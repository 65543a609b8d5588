// The settings sheet under the keyboard.
#include <algorithm>

#include "framework/windows/OpenWindows.h"
#include "windows/SheetWindowTest.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

// The key of a caption's mnemonic; 0 without one.
WORD MnemonicOf(HWND captioned) {
  const std::u16string text = TextOf(captioned);
  const std::size_t mark = text.find(u'&');
  if (mark == text.npos || text[mark + 1] == u'&') return 0;
  return LOBYTE(VkKeyScanW(static_cast<WCHAR>(text[mark + 1])));
}

class SheetKeysTest : public SheetWindowTest {
 protected:
  // The page's control that has the focus, or the sheet's; a combo rather than its field.
  HWND FocusedControl() {
    HWND focus = GetFocus();
    if (ClassOf(GetParent(focus)).starts_with(u"Combo")) focus = GetParent(focus);
    return focus;
  }

  // Where Tab must lead on the page in front, in order: whatever takes the focus, and of the radio
  // buttons of a group one.
  std::vector<HWND> TabStops(CPropertyPage& page) {
    std::vector<HWND> stops;
    for (const auto& control : page.Controls()) {
      const HWND window = WindowOf(*control);
      const auto* radio = dynamic_cast<const RadioButton*>(control.get());
      const bool takesFocus = (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) == 0 &&
                              dynamic_cast<const ProgressBar*>(control.get()) == nullptr;
      if (!takesFocus || !control->enabled || !control->visible) continue;
      if (radio != nullptr && radio->group != nullptr && !radio->checked) continue;
      stops.push_back(window);
    }
    for (const int button : {IDOK, IDCANCEL, 8085, kIdHelp}) stops.push_back(Button(button));
    stops.push_back(Tabs());
    return stops;
  }

  // Goes once round with Tab from the tabs on, on one page.
  void ExpectTabGoesRound(int index) {
    std::vector<HWND> wanted;
    std::vector<HWND> visited;
    const auto step = [&](HWND) {
      if (visited.size() < wanted.size()) Strike(VK_TAB);
    };
    const auto look = [&](HWND window) {
      if (visited.size() < wanted.size()) visited.push_back(FocusedControl());
      step(window);
    };
    ModalUser::Steps steps{[&](HWND window) {
      wanted = TabStops(Page(index));
      SetFocus(Tabs());
      step(window);
    }};
    constexpr int kMoreThanAnyPageHas = 40;
    for (int i = 0; i < kMoreThanAnyPageHas; ++i) steps.push_back(look);
    LookAtSheet(steps, index);

    EXPECT_GE(wanted.size(), 6u);
    EXPECT_EQ(visited, wanted) << "page " << index;
  }
};

TEST_F(SheetKeysTest, TabGoesRoundThroughEveryPageAndTheButtons) {
  for (int page = 0; page < 5; ++page) ExpectTabGoesRound(page);
}

TEST_F(SheetKeysTest, TabGoesRoundThroughTheDeploymentPageOfTheOtherForm) {
  UseIosForm();

  ExpectTabGoesRound(1);
}

TEST_F(SheetKeysTest, TheMnemonicOfACaptionLeadsToItsField) {
  for (const char16_t* label : {u"Output file:", u"App name:", u"App ID:", u"Version:"}) {
    LookAtSheet({[&](HWND) {
                   const WORD key = MnemonicOf(CaptionOf(Find<Edit>(Page(0), label)));
                   ASSERT_NE(key, 0) << ToUtf8(label);
                   SetFocus(Tabs());
                   StrikeWith(VK_MENU, key);
                 },
                 [&](HWND) {
                   EXPECT_EQ(GetFocus(), WindowOf(Find<Edit>(Page(0), label))) << ToUtf8(label);
                 }});
  }
}

TEST_F(SheetKeysTest, TheMnemonicOfACheckBoxSwitchesIt) {
  bool before = false;
  LookAtSheet({[&](HWND) {
                 auto& box = Find<CheckBox>(Page(0), u"Full screen");
                 before = box.checked;
                 StrikeWith(VK_MENU, MnemonicOf(WindowOf(box)));
               },
               [&](HWND) { EXPECT_NE(Find<CheckBox>(Page(0), u"Full screen").checked, before); }});
}

TEST_F(SheetKeysTest, EveryFieldOfAPageThatHasACaptionHasAMnemonicOfItsOwn) {
  LookAtSheet([&] {
    std::vector<WORD> keys;
    for (const auto& control : Page(0).Controls()) {
      if (CaptionOf(*control) == nullptr) continue;
      if (const WORD key = MnemonicOf(CaptionOf(*control))) keys.push_back(key);
    }
    EXPECT_GE(keys.size(), 4u);
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end());
  });
}

TEST_F(SheetKeysTest, EnterPressesTheButtonOfAPageThatTabHasReached) {
  ModalUser::Steps steps{[&](HWND) { SetFocus(Tabs()); }};
  constexpr int kMoreThanThePageHas = 20;
  for (int i = 0; i < kMoreThanThePageHas; ++i) {
    steps.push_back([&](HWND) {
      if (GetFocus() != WindowOf(Find<qutav::Button>(Page(1), u"Create..."))) Strike(VK_TAB);
    });
  }
  steps.push_back([](HWND) { Strike(VK_RETURN); });
  steps.push_back([&](HWND) { EXPECT_FALSE(Sheet().HasEnded()); });
  const ModalUser opened(WindowTitled(u"Create Self-Signed Digital Certificate"), Close);

  LookAtSheet(steps, 1);
}

TEST_F(SheetKeysTest, EnterPressesTheImageButtonOfAPageThatHasTheFocus) {
  int clicks = 0;
  LookAtSheet({[&](HWND) {
                 auto& button = Find<CStretchBitmapButton>(Page(0), u"Add file");
                 button.onClick = [&] { ++clicks; };
                 SetFocus(WindowOf(button));
                 Strike(VK_RETURN);
               },
               [&](HWND) {
                 EXPECT_EQ(clicks, 1);
                 EXPECT_FALSE(Sheet().HasEnded());
               }});
}

TEST_F(SheetKeysTest, EscCancelsFromAFieldOfSeveralLines) {
  UseSheet({[&](HWND) {
    RunEvent([&] { Sheet().SetActivePage(3); });
    SetFocus(WindowOf(Find<Edit>(Page(3), u"Description:")));
    Strike(VK_ESCAPE);
  }});

  EXPECT_EQ(SettingsGet(keys::kExitOk), u"(as before)");
}

TEST_F(SheetKeysTest, EscInAnOpenedComboOfAPageLeavesTheSheetOpen) {
  LookAtSheet({[&](HWND) {
                 const HWND combo = WindowOf(Find<ComboBox>(Page(1), u"Certificate:"));
                 SetFocus(combo);
                 SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
                 Strike(VK_ESCAPE);
               },
               [&](HWND) { EXPECT_FALSE(Sheet().HasEnded()); }},
              1);
}

}  // namespace
}  // namespace qutav::test
