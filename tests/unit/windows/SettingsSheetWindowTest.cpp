// The settings sheet in its window: pages, buttons, ends.
#include "TranslatedTexts.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/PublishEntry.h"
#include "win/InterfaceLanguage.h"
#include "windows/SheetWindowTest.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

constexpr int kPublish = 8085;

class SettingsSheetWindowTest : public SheetWindowTest {
 protected:
  std::vector<std::u16string> TabTitles() {
    std::vector<std::u16string> titles;
    for (int i = 0; i < TabCtrl_GetItemCount(Tabs()); ++i) {
      wchar_t text[100] = {};
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = text;
      item.cchTextMax = 100;
      TabCtrl_GetItem(Tabs(), i, &item);
      const std::wstring title(text);
      titles.emplace_back(title.begin(), title.end());
    }
    return titles;
  }
  void ClickOnTab(int index) {
    RECT place{};
    TabCtrl_GetItemRect(Tabs(), index, &place);
    ClickAt(Tabs(), (place.left + place.right) / 2, (place.top + place.bottom) / 2);
  }
  std::vector<bool> CreatedPages() {
    std::vector<bool> created;
    for (const CPropertyPage* page : Sheet().Pages()) created.push_back(page->IsCreated());
    return created;
  }
  void ExpectInFront(int index) {
    EXPECT_EQ(Sheet().GetActiveIndex(), index);
    EXPECT_EQ(TabCtrl_GetCurSel(Tabs()), index);
    for (int i = 0; i < static_cast<int>(Sheet().Pages().size()); ++i) {
      if (!Page(i).IsCreated()) continue;
      EXPECT_EQ(IsWindowVisible(WindowOf(Page(i))) != FALSE, i == index);
    }
  }
};

// --- Pages ---------------------------------------------------------------------------------------

TEST_F(SettingsSheetWindowTest, EachFormHasItsTitleAndItsTabs) {
  LookAtSheet([&] {
    EXPECT_EQ(TextOf(Window()), u"TAV for Android Settings");
    EXPECT_THAT(TabTitles(),
                ElementsAre(u"General", u"Deployment", u"Icons", u"Permissions", u"Languages"));
  });
  UseIosForm();
  LookAtSheet([&] {
    EXPECT_EQ(TextOf(Window()), u"TAV for iOS Settings");
    EXPECT_THAT(TabTitles(), ElementsAre(u"General", u"Deployment", u"Icons", u"Languages"));
  });
}

TEST_F(SettingsSheetWindowTest, APageIsCreatedWhenItsTabIsFirstClicked) {
  LookAtSheet({[&](HWND) {
                 EXPECT_THAT(CreatedPages(), ElementsAre(true, false, false, false, false));
                 ClickOnTab(2);
               },
               [&](HWND) {
                 EXPECT_THAT(CreatedPages(), ElementsAre(true, false, true, false, false));
                 ExpectInFront(2);
                 ClickOnTab(0);
               },
               [&](HWND) { ExpectInFront(0); }});
}

TEST_F(SettingsSheetWindowTest, CtrlTabTurnsToTheNextPage) {
  LookAtSheet({[](HWND) { StrikeWith(VK_CONTROL, VK_TAB); },
               [&](HWND) {
                 ExpectInFront(1);
                 EXPECT_THAT(CreatedPages(), ElementsAre(true, true, false, false, false));
               }});
}

TEST_F(SettingsSheetWindowTest, TheArrowKeysTurnPagesAtTheTabs) {
  LookAtSheet({[&](HWND) {
                 SetFocus(Tabs());
                 Strike(VK_RIGHT);
               },
               [&](HWND) { ExpectInFront(1); }});
}

TEST_F(SettingsSheetWindowTest, ItOpensOnThePageThatIsAskedFor) {
  LookAtSheet(
      [&] {
        ExpectInFront(1);
        EXPECT_THAT(CreatedPages(), ElementsAre(false, true, false, false, false));
      },
      1);
}

TEST_F(SettingsSheetWindowTest, APageThatAHandlerTurnsToComesToTheFront) {
  LookAtSheet([&] {
    RunEvent([&] { Sheet().SetActivePage(3); });

    ExpectInFront(3);
  });
}

TEST_F(SettingsSheetWindowTest, APageKeepsWhatWasTypedWhileAnotherIsInFront) {
  LookAtSheet({[&](HWND) {
                 SetFocus(WindowOf(Find<Edit>(Page(0), u"App name:")));
                 SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
                 TypeText(u"Chess");
               },
               [&](HWND) { ClickOnTab(1); }, [&](HWND) { ClickOnTab(0); },
               [&](HWND) {
                 EXPECT_EQ(TextOf(WindowOf(Find<Edit>(Page(0), u"App name:"))), u"Chess");
                 EXPECT_EQ(Find<Edit>(Page(0), u"App name:").text, u"Chess");
               }});
}

TEST_F(SettingsSheetWindowTest, EveryControlOfEveryPageStandsInsideItsPage) {
  LookAtSheet([&] {
    for (int i = 0; i < 5; ++i) {
      RunEvent([&] { Sheet().SetActivePage(i); });
      const RECT page = PlaceOf(WindowOf(Page(i)));
      for (const auto& control : Page(i).Controls()) {
        const RECT place = PlaceOf(WindowOf(*control));
        EXPECT_TRUE(place.left >= page.left && place.top >= page.top && place.right <= page.right &&
                    place.bottom <= page.bottom)
            << i << " " << ToUtf8(control->label);
      }
    }
  });
}

// --- Buttons -------------------------------------------------------------------------------------

TEST_F(SettingsSheetWindowTest, PublishTakesApplysPlaceFivePixelsWiderOnEitherSide) {
  LookAtSheet([&] {
    const RECT ok = PlaceOf(Button(IDOK));
    const RECT cancel = PlaceOf(Button(IDCANCEL));
    const RECT publish = PlaceOf(Button(kPublish));
    const RECT help = PlaceOf(Button(kIdHelp));
    const LONG gap = cancel.left - ok.right;

    EXPECT_EQ(Button(kIdApply), nullptr);
    EXPECT_EQ(TextOf(Button(kPublish)), u"Publish");
    EXPECT_EQ(publish.left, cancel.right + gap - 5);
    EXPECT_EQ(publish.right, help.left - gap + 5);
    EXPECT_EQ(publish.top, cancel.top);
    EXPECT_EQ(publish.bottom, cancel.bottom);
  });
}

TEST_F(SettingsSheetWindowTest, PublishComesBehindCancelInTheStockFont) {
  LookAtSheet([&] {
    EXPECT_EQ(GetWindow(Button(IDCANCEL), GW_HWNDNEXT), Button(kPublish));
    EXPECT_TRUE(StyleOf(Button(kPublish)) & WS_TABSTOP);
    EXPECT_TRUE(IsWindowVisible(Button(kPublish)));
    EXPECT_EQ(SendMessageW(Button(kPublish), WM_GETFONT, 0, 0),
              reinterpret_cast<LRESULT>(GetStockObject(DEFAULT_GUI_FONT)));
  });
}

TEST_F(SettingsSheetWindowTest, AHelpButtonThatIsAQuestionMarkReadsAiuto) {
  LookAtSheet([&] { EXPECT_EQ(TextOf(Button(kIdHelp)), u"Help"); });
  language.texts[texts::kSheetHelp] = u"?";
  LookAtSheet([&] { EXPECT_EQ(TextOf(Button(kIdHelp)), u"Aiuto"); });
}

TEST_F(SettingsSheetWindowTest, HelpOpensItsLink) {
  LookAtSheet([&] { SendMessageW(Button(kIdHelp), BM_CLICK, 0, 0); });

  EXPECT_THAT(ground.Links(), ElementsAre(u"https://www.zenvoka.example/go/"
                                          u"learn_tav_android_using_quorl_vr5_5_en"));
}

TEST_F(SettingsSheetWindowTest, TheCaptionsOfItsButtonsFitInEveryLanguage) {
  for (const TranslatedTexts& texts : kTranslatedTexts) {
    const std::string code = ToUtf8(texts.code);
    language.SetThreadInterfaceLanguage(LanguageIdForCode(texts.code));
    LookAtSheet([&] {
      EXPECT_EQ(TextOf(Button(IDCANCEL)), texts.cancel) << code;
      for (const int button : {IDOK, IDCANCEL, kPublish, kIdHelp}) {
        const HWND window = Button(button);
        const std::u16string text = TextOf(window);
        const HDC context = GetDC(window);
        const HGDIOBJ former =
            SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
        SIZE size{};
        GetTextExtentPoint32W(context, reinterpret_cast<const wchar_t*>(text.c_str()),
                              static_cast<int>(text.size()), &size);
        SelectObject(context, former);
        ReleaseDC(window, context);
        const RECT place = PlaceOf(window);
        EXPECT_LT(size.cx, place.right - place.left) << code << " " << ToUtf8(text);
      }
      EXPECT_GE(PlaceOf(Button(IDOK)).left, PlaceOf(Window()).left) << code;
    });
  }
}

TEST_F(SettingsSheetWindowTest, PublishWithoutACertificateShowsItsMessageOverTheDeploymentPage) {
  SettingsRemove(keys::kCertificatePath);
  SettingsRemove(keys::kCertificatePassword);
  const BoxReader box;

  LookAtSheet({[&](HWND) { PostMessageW(Button(kPublish), BM_CLICK, 0, 0); },
               [&](HWND) {
                 ExpectInFront(1);
                 EXPECT_FALSE(Sheet().HasEnded());
               }});

  EXPECT_FALSE(box.text.empty());
}

TEST_F(SettingsSheetWindowTest, APublishWithoutACertificateOpensTheSheetOnTheDeploymentPage) {
  SettingsRemove(keys::kCertificatePath);
  const ModalUser user(AnyDialog(), {[&](HWND sheet) {
                                       EXPECT_EQ(TextOf(sheet), u"TAV for Android Settings");
                                       ExpectInFront(1);
                                       EXPECT_THAT(CreatedPages(),
                                                   ElementsAre(false, true, false, false, false));
                                     },
                                     [](HWND) { Strike(VK_ESCAPE); }});

  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_TRUE(PackagerCommands().empty());
}

// --- Ends ----------------------------------------------------------------------------------------

TEST_F(SettingsSheetWindowTest, ItIsModalOverTheActiveWindow) {
  LookAtSheet([&] {
    EXPECT_EQ(GetWindow(Window(), GW_OWNER), ground.Owner());
    EXPECT_FALSE(IsWindowEnabled(ground.Owner()));
  });

  EXPECT_TRUE(IsWindowEnabled(ground.Owner()));
  EXPECT_EQ(GetActiveWindow(), ground.Owner());
}

TEST_F(SettingsSheetWindowTest, EnterStoresAndEndsIt) {
  SettingsSet(keys::kTavDestination, u"Game.apk");

  UseSheet({[&](HWND) {
              SetFocus(WindowOf(Find<Edit>(Page(0), u"App name:")));
              SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
              TypeText(u"Chess");
            },
            [](HWND) { Strike(VK_RETURN); }});

  EXPECT_EQ(SettingsGet(keys::kExitOk), u"false");
  EXPECT_NE(DescriptorOnDisk().find("<name>Chess</name>"), std::string::npos);
}

TEST_F(SettingsSheetWindowTest, EscAndTheCloseBoxStoreNothing) {
  const std::string before = DescriptorOnDisk();

  UseSheet({[](HWND) { Strike(VK_ESCAPE); }});
  UseSheet({[](HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }});
  UseSheet({[&](HWND) { SendMessageW(Button(IDCANCEL), BM_CLICK, 0, 0); }});

  EXPECT_EQ(SettingsGet(keys::kExitOk), u"(as before)");
  EXPECT_EQ(DescriptorOnDisk(), before);
}

TEST_F(SettingsSheetWindowTest, ItStaysOpenWhenAPageRefuses) {
  const BoxReader box;

  LookAtSheet({[&](HWND) {
                 SetFocus(WindowOf(Find<Edit>(Page(0), u"App ID:")));
                 SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
                 TypeText(u"not_an_id");
               },
               [](HWND) { Strike(VK_RETURN); },
               [&](HWND window) {
                 EXPECT_FALSE(Sheet().HasEnded());
                 EXPECT_TRUE(IsWindowVisible(window));
               }});

  EXPECT_TRUE(box.text.starts_with(u"Invalid application ID."));
  EXPECT_EQ(SettingsGet(keys::kExitOk), u"(as before)");
}

}  // namespace
}  // namespace qutav::test
