// Opening the sheet: its forms, its buttons, and what closing it throws away.

#include "SheetTest.h"
#include "descriptor/DescriptorDocument.h"
#include "packaging/DocumentDescriptor.h"
#include "support/HelpLinks.h"

namespace qutav::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsNull;

class SettingsSheetTest : public SheetTest {
 protected:
  std::vector<std::u16string> PageTitles() {
    std::vector<std::u16string> titles;
    Open([&](CPropertySheet& sheet) {
      for (const CPropertyPage* page : sheet.Pages()) titles.push_back(page->Title());
    });
    return titles;
  }
  std::vector<std::u16string> PageClasses() {
    std::vector<std::u16string> classes;
    Open([&](CPropertySheet& sheet) {
      for (const CPropertyPage* page : sheet.Pages()) classes.push_back(page->ClassName());
    });
    return classes;
  }
};

TEST_F(SettingsSheetTest, TheAndroidFormHasFivePages) {
  EXPECT_THAT(PageTitles(),
              ElementsAre(u"General", u"Deployment", u"Icons", u"Permissions", u"Languages"));
  EXPECT_THAT(PageClasses(), ElementsAre(u"CIpaSettingsDlg", u"CDigitalSigDlg", u"CIconPreviewDlg",
                                         u"CDroFeaturesDlg", u"CLanguagesDlg"));
}

TEST_F(SettingsSheetTest, TheIosFormHasFourPages) {
  UseIosForm();

  EXPECT_THAT(PageTitles(), ElementsAre(u"General", u"Deployment", u"Icons", u"Languages"));
  EXPECT_THAT(PageClasses(), ElementsAre(u"CIpaSettingsDlg", u"CVolDeployDlg", u"CIconPreviewDlg",
                                         u"CLanguagesDlg"));
}

TEST_F(SettingsSheetTest, OnlyTheExactMarkSelectsTheIosForm) {
  SettingsSet(keys::kPublishIpa, u"True");

  EXPECT_EQ(PageTitles().size(), 5u);
}

TEST_F(SettingsSheetTest, EachFormHasItsTitle) {
  std::vector<std::u16string> titles;
  const auto note = [&](CPropertySheet& sheet) { titles.push_back(sheet.Title()); };

  Open(note);
  UseIosForm();
  Open(note);

  EXPECT_THAT(titles, ElementsAre(u"TAV for Android Settings", u"TAV for iOS Settings"));
}

TEST_F(SettingsSheetTest, EveryPageHasHelpAndACallbackAndNoOtherFlag) {
  std::vector<std::uint32_t> flags;

  Open([&](CPropertySheet& sheet) {
    for (const CPropertyPage* page : sheet.Pages()) flags.push_back(page->flags);
  });

  EXPECT_THAT(flags, Each(0x20u | 0x80u));
}

TEST_F(SettingsSheetTest, ADescriptorThatCannotBeLoadedShowsNoSheet) {
  files.Put(descriptorPath, "<application");

  EXPECT_FALSE(Open([](CPropertySheet&) { ADD_FAILURE() << "it was shown"; }));

  EXPECT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_THAT(frontEnd.dialogs, IsEmpty());
}

TEST_F(SettingsSheetTest, APageIsCreatedWhenItIsFirstShown) {
  std::vector<bool> created;

  EXPECT_TRUE(Open(
      [&](CPropertySheet& sheet) {
        for (const CPropertyPage* page : sheet.Pages()) created.push_back(page->IsCreated());
      },
      1));

  EXPECT_THAT(created, ElementsAre(false, true, false, false, false));
}

TEST_F(SettingsSheetTest, ItOpensOnTheFirstPageUnlessAnotherIsAskedFor) {
  std::vector<int> pages;
  const auto note = [&](CPropertySheet& sheet) { pages.push_back(sheet.GetActiveIndex()); };

  Open(note);
  Open(note, 1);

  EXPECT_THAT(pages, ElementsAre(0, 1));
}

TEST_F(SettingsSheetTest, ADocumentThatIsAlreadyInMemoryIsShownWithItsUnsavedEdits) {
  ASSERT_EQ(LoadDocumentDescriptor(false), kLoaded);
  CurrentDescriptor.SetText("versionLabel", u"unsaved");

  Open([](CPropertySheet& sheet) {
    EXPECT_EQ(Find<Edit>(TurnTo(sheet, u"General"), u"Version label:").text, u"unsaved");
  });
}

TEST_F(SettingsSheetTest, CancelThrowsAwayTheDocumentInMemoryAndLeavesTheFile) {
  const std::string before = DescriptorOnDisk();

  Open([&](CPropertySheet& sheet) {
    Find<CheckList>(TurnTo(sheet, u"Languages"), u"Supported Languages").ToggleByUser(0);
    PressButton(sheet, u"Cancel");
  });

  EXPECT_FALSE(CurrentDescriptor.IsParserReady());
  EXPECT_EQ(DescriptorOnDisk(), before);
  EXPECT_EQ(SettingsGet(keys::kExitOk), u"(as before)");
}

TEST_F(SettingsSheetTest, OkThrowsAwayTheDocumentInMemoryToo) {
  Open([&](CPropertySheet& sheet) { PressButton(sheet, u"OK"); });

  EXPECT_FALSE(CurrentDescriptor.IsParserReady());
}

TEST_F(SettingsSheetTest, CancelKeepsWhatAPageWroteAtAChange) {
  Open([&](CPropertySheet& sheet) {
    CPropertyPage& page = TurnTo(sheet, u"Permissions");
    Find<CheckBox>(page,
                   u"Manually manage permissions and manifest additions in the application "
                   u"descriptor file")
        .Click();
    PressButton(sheet, u"Cancel");
  });

  EXPECT_EQ(SettingsGet(u"com.zenvoka.android.ignore_cdata"), u"true");
}

TEST_F(SettingsSheetTest, AHelpButtonThatIsAQuestionMarkReadsAiuto) {
  language.texts[9032] = u"?";

  Open([](CPropertySheet& sheet) { EXPECT_EQ(Find<Button>(sheet, u"Help").text, u"Aiuto"); });
}

TEST_F(SettingsSheetTest, AnyOtherTextOfTheHelpButtonStays) {
  Open([](CPropertySheet& sheet) { EXPECT_EQ(Find<Button>(sheet, u"Help").text, u"Help"); });
  language.texts[9032] = u"? ";
  Open([](CPropertySheet& sheet) { EXPECT_EQ(Find<Button>(sheet, u"Help").text, u"? "); });
}

TEST_F(SettingsSheetTest, PublishTakesThePlaceOfApplyBehindCancel) {
  frontEnd.sheetWindow.buttons[12321] = {300, 500, 380, 524};
  std::vector<std::u16string> labels;

  Open([&](CPropertySheet& sheet) {
    for (const auto& control : sheet.Controls()) labels.push_back(control->label);
    const auto& publish = Find<Button>(sheet, u"Publish");
    EXPECT_EQ(publish.text, u"Publish");
    EXPECT_EQ(publish.commandId, 8085);
    EXPECT_TRUE(publish.enabled && publish.visible);
    EXPECT_EQ(publish.place.left, 295);
    EXPECT_EQ(publish.place.top, 500);
    EXPECT_EQ(publish.place.right, 385);
    EXPECT_EQ(publish.place.bottom, 524);
  });

  EXPECT_THAT(labels, ElementsAre(u"OK", u"Cancel", u"Publish", u"Help"));
}

TEST_F(SettingsSheetTest, ASheetTallerThanTheScreenScrolls) {
  frontEnd.sheetWindow.workArea = {0, 0, 1024, 600};
  frontEnd.sheetWindow.window = {0, 0, 500, 700};

  Open([](CPropertySheet& sheet) {
    sheet.OnVScroll(ScrollCode::kPageDown, 0);
    EXPECT_TRUE(sheet.OnMouseWheel(40));
  });

  EXPECT_EQ(frontEnd.sheetWindow.resizedTo, std::make_pair(517, 590));
  EXPECT_THAT(frontEnd.sheetWindow.scrolled, ElementsAre(-100, 40));
}

TEST_F(SettingsSheetTest, HelpOpensThePageOfTheForm) {
  const auto help = [](CPropertySheet& sheet) { PressButton(sheet, u"Help"); };

  Open(help);
  UseIosForm();
  Open(help);

  EXPECT_THAT(frontEnd.links,
              ElementsAre(u"https://www.zenvoka.example/go/learn_tav_android_using_quorl_vr5_5_en",
                          u"https://www.zenvoka.example/go/learn_TAV_for_iOS_quorl_en"));
}

}  // namespace
}  // namespace qutav::test
