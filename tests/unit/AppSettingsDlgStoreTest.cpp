#include <algorithm>

#include "GeneralPageTest.h"
#include "settings_ui/AppSettingsDlg.h"

namespace qutav::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

class AppSettingsDlgStoreTest : public GeneralPageTest<CAppSettingsDlg> {
 protected:
  int StoreWithId(const std::u16string& id) {
    EditOf(u"App ID:").Type(id);
    return page.StoreToDescriptor();
  }

  // What is stored when exactly these profiles are checked.
  std::string ProfilesStoredFor(const std::vector<std::u16string>& checked) {
    for (const char16_t* label :
         {u"Desktop", u"Mobile Device", u"Extended Desktop", u"Extended Mobile Device"}) {
      BoxOf(label).checked = std::find(checked.begin(), checked.end(), label) != checked.end();
    }
    EXPECT_EQ(page.StoreToDescriptor(), 0);
    // As the file has it: reading trims it.
    const std::string text = SavedFile();
    const std::size_t start = text.find("<supportedProfiles>");
    if (start == text.npos) return "(none)";
    const std::size_t value = start + std::string("<supportedProfiles>").size();
    return text.substr(value, text.find('<', value) - value);
  }
};

TEST_F(AppSettingsDlgStoreTest, StoringWritesEveryFieldAndSavesTheFile) {
  Open(
      "<id>old</id><filename>Old</filename><name>Old</name><versionNumber>1</versionNumber>"
      "<description>old</description><copyright>old</copyright><initialWindow/>");
  EditOf(u"App ID:").Type(u"com.new");
  EditOf(u"App name:").Type(u"New");
  EditOf(u"File name:").Type(u"Ignored");
  EditOf(u"Version:").Type(u"2.0");
  EditOf(u"Description:").Type(u"new");
  EditOf(u"Copyright:").Type(u"Us");
  ComboOf(u"Window style:").Choose(1);
  BoxOf(u"Mobile Device").Click();

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(SavedFile(), HasSubstr("<name>New</name>"));
  EXPECT_EQ(Children(),
            "<id>com.new</id><filename>New</filename><name>New</name>"
            "<versionNumber>2.0</versionNumber><description>new</description>"
            "<copyright>Us</copyright><initialWindow><systemChrome>none</systemChrome>"
            "<transparent>false</transparent></initialWindow>"
            "<supportedProfiles>desktop extendedDesktop extendedMobileDevice</supportedProfiles>");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(AppSettingsDlgStoreTest, NewElementsAreAppendedWithTheNameBeforeTheFileName) {
  Open("<initialWindow/>");
  EditOf(u"App name:").Type(u"Fun");
  EditOf(u"App ID:").Type(u"com.fun");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(Children(), EndsWith("<id>com.fun</id><name>Fun</name><filename>Fun</filename>"));
}

// --- Application id ------------------------------------------------------------------------------

TEST_F(AppSettingsDlgStoreTest, ARefusedIdIsShownAndLeavesEverythingAsItWas) {
  Open("<id>com.game</id><name>Game</name><initialWindow/>");
  EditOf(u"App name:").Type(u"Fun");
  EditOf(u"Output file:").Type(u"Fun.apk");
  BoxOf(u"Windows installer (.exe)").Click();
  const std::string file = SavedFile();
  const SettingsTexts settings = SettingsMap;

  EXPECT_EQ(StoreWithId(u"my game"), 1);

  ExpectRefusedId();
  EXPECT_EQ(TextOf("id"), "com.game");
  EXPECT_EQ(TextOf("name"), "Game");
  EXPECT_EQ(SettingsMap, settings);
  EXPECT_EQ(SavedFile(), file);
  EXPECT_FALSE(page.changed);
}

TEST_F(AppSettingsDlgStoreTest, AnEmptyIdIsRefused) {
  Open("<initialWindow/>");

  EXPECT_EQ(page.StoreToDescriptor(), 1);

  ExpectRefusedId();
}

TEST_F(AppSettingsDlgStoreTest, OkStoresThePageAndEndsIt) {
  Open();

  page.OnOK();

  EXPECT_TRUE(page.HasEnded());
  EXPECT_EQ(page.Result(), kIdOk);
  EXPECT_EQ(SettingsGet(keys::kWindowType), u"standard");
}

TEST_F(AppSettingsDlgStoreTest, OkWithARefusedIdLeavesThePageOpen) {
  Open();
  EditOf(u"App ID:").Type(u"");

  page.OnOK();

  EXPECT_FALSE(page.HasEnded());
  ExpectRefusedId();
}

// --- Texts ---------------------------------------------------------------------------------------

TEST_F(AppSettingsDlgStoreTest, LocalisedNameAndDescriptionStay) {
  const std::string localised =
      "<id>com.game</id><filename>Old</filename><name><text xml:lang=\"en\">Game</text></name>"
      "<description><text xml:lang=\"en\">Fun</text></description>";
  Open(localised);
  EditOf(u"App name:").text = u"typed all the same";
  EditOf(u"Description:").text = u"typed all the same";

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(Children(), localised);
}

TEST_F(AppSettingsDlgStoreTest, AnEmptyNameAndVersionLeaveTheElements) {
  Open(
      "<id>com.game</id><filename>Old</filename><name>Old</name>"
      "<versionNumber>1</versionNumber>");
  EditOf(u"App name:").Type(u"");
  EditOf(u"Version:").Type(u"");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("filename"), "Old");
  EXPECT_EQ(TextOf("name"), "Old");
  EXPECT_EQ(TextOf("versionNumber"), "1");
}

TEST_F(AppSettingsDlgStoreTest, AnEmptyDescriptionAndCopyrightClearTheirElements) {
  Open("<id>com.game</id><description>old</description><copyright>old</copyright>");
  EditOf(u"Description:").Type(u"");
  EditOf(u"Copyright:").Type(u"");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(Children(), "<id>com.game</id><description/><copyright/>");
}

TEST_F(AppSettingsDlgStoreTest, AnEmptyDescriptionAddsNoElement) {
  Open("<id>com.game</id>");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(Children(), "<id>com.game</id>");
}

TEST_F(AppSettingsDlgStoreTest, ADescriptionOfSeveralLinesIsTheSameAfterStoringAndLoading) {
  Open("<id>com.game</id><description>old</description>");
  EditOf(u"Description:").Type(u"one\r\ntwo\r\n\r\nfour");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(SavedFile().find("&#"), std::string::npos) << SavedFile();
  EXPECT_EQ(TextOf("description"), "one\ntwo\n\nfour");
  EXPECT_EQ(Load(SavedFile()), 0);
  CAppSettingsDlg anew;
  anew.Create();
  EXPECT_EQ(Find<Edit>(anew, u"Description:").text, u"one\r\ntwo\r\n\r\nfour");
}

TEST_F(AppSettingsDlgStoreTest, ADescriptionWithCarriageReturnsOfItsOwnShowsEachLineEndOnce) {
  Open("<id>com.game</id><description>one&#13;\ntwo\nthree</description>");

  EXPECT_EQ(EditOf(u"Description:").text, u"one\r\ntwo\r\nthree");
}

// --- Output file and installer -------------------------------------------------------------------

TEST_F(AppSettingsDlgStoreTest, TheOutputFileIsStoredWithForwardSlashesAsAChange) {
  Open();
  EditOf(u"Output file:").Type(u"C:\\out\\Fun");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"C:/out/Fun");
  EXPECT_TRUE(page.changed);
}

TEST_F(AppSettingsDlgStoreTest, AnOutputFileAsItWasIsNoChange) {
  files.PutFolder(u"C:/out");
  SettingsSet(keys::kTavDestination, u"C:/out/Fun.apk");
  SettingsSet(keys::kPublishExe, u"false");
  Open();

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"C:/out/Fun.apk");
  EXPECT_FALSE(page.changed);
}

TEST_F(AppSettingsDlgStoreTest, AnEmptyOutputFileLeavesTheStoredOne) {
  SettingsSet(keys::kTavDestination, u"Fun.apk");
  SettingsSet(keys::kPublishExe, u"false");
  Open();
  EditOf(u"Output file:").Type(u"");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"Fun.apk");
  EXPECT_FALSE(page.changed);
}

TEST_F(AppSettingsDlgStoreTest, AnOutputFileOf300CharactersIsCutAt256) {
  Open();
  EditOf(u"Output file:").Type(std::u16string(300, u'x'));

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(SettingsGet(keys::kTavDestination), std::u16string(256, u'x'));
}

TEST_F(AppSettingsDlgStoreTest, TheInstallerIsStoredAsAChangeWhenItDiffers) {
  SettingsSet(keys::kTavDestination, u"Game.apk");
  struct {
    const char16_t* before;
    bool checked;
    const char16_t* after;
    bool changed;
  } const cases[] = {
      {u"", true, u"true", true},       {u"false", true, u"true", true},
      {u"true", true, u"true", false},  {u"", false, u"false", true},
      {u"true", false, u"false", true}, {u"false", false, u"false", false},
  };
  for (const auto& row : cases) {
    CAppSettingsDlg shown;
    LoadChildren("<id>com.game</id>");
    shown.Create();
    SettingsSet(keys::kPublishExe, row.before);
    Find<CheckBox>(shown, u"Windows installer (.exe)").checked = row.checked;

    EXPECT_EQ(shown.StoreToDescriptor(), 0);

    EXPECT_EQ(SettingsGet(keys::kPublishExe), row.after);
    EXPECT_EQ(shown.changed, row.changed);
  }
}

// --- Window style --------------------------------------------------------------------------------

TEST_F(AppSettingsDlgStoreTest, EachWindowStyleHasItsThreeWords) {
  const struct {
    int row;
    const char16_t* setting;
    const char* chrome;
    const char* transparent;
  } cases[] = {{0, u"standard", "standard", "false"},
               {1, u"opaque", "none", "false"},
               {2, u"transparent", "none", "true"},
               {-1, u"standard", "standard", "false"}};
  Open();
  for (const auto& style : cases) {
    ComboOf(u"Window style:").SetCurSel(style.row);

    EXPECT_EQ(page.StoreToDescriptor(), 0);

    EXPECT_EQ(SettingsGet(keys::kWindowType), style.setting);
    EXPECT_EQ(TextOf("systemChrome"), style.chrome);
    EXPECT_EQ(TextOf("transparent"), style.transparent);
  }
}

TEST_F(AppSettingsDlgStoreTest, ATransparentWindowWithSystemChromeIsStoredAsOpaque) {
  Open(
      "<id>com.game</id><initialWindow><systemChrome>standard</systemChrome>"
      "<transparent>true</transparent></initialWindow>");
  EXPECT_EQ(ComboOf(u"Window style:").GetCurSel(), 0);

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("systemChrome"), "standard");
  EXPECT_EQ(TextOf("transparent"), "false");
}

TEST_F(AppSettingsDlgStoreTest, AStyleOfTheSettingsAloneCreatesBothElements) {
  SettingsSet(keys::kWindowType, u"transparent");
  Open("<id>com.game</id><initialWindow><transparent>false</transparent></initialWindow>");
  EXPECT_EQ(ComboOf(u"Window style:").GetCurSel(), 2);

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("systemChrome"), "none");
  EXPECT_EQ(TextOf("transparent"), "true");
}

TEST_F(AppSettingsDlgStoreTest, WithoutAnInitialWindowTheStyleStaysInTheSettings) {
  SettingsSet(keys::kWindowType, u"transparent");
  Open("<id>com.game</id>");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(Children(), "<id>com.game</id>");
  EXPECT_EQ(SettingsGet(keys::kWindowType), u"transparent");
}

// --- Profiles ------------------------------------------------------------------------------------

TEST_F(AppSettingsDlgStoreTest, ProfilesAreWrittenInTheirOrderWithTheBlanksBehind) {
  Open();

  EXPECT_EQ(ProfilesStoredFor({u"Desktop"}), "desktop ");
  EXPECT_EQ(ProfilesStoredFor({u"Extended Desktop"}), "extendedDesktop ");
  EXPECT_EQ(ProfilesStoredFor({u"Mobile Device"}), "mobileDevice ");
  EXPECT_EQ(ProfilesStoredFor({u"Extended Mobile Device"}), "extendedMobileDevice");
  EXPECT_EQ(ProfilesStoredFor({u"Mobile Device", u"Desktop", u"Extended Mobile Device"}),
            "desktop mobileDevice extendedMobileDevice");
}

TEST_F(AppSettingsDlgStoreTest, DesktopMobileAndExtendedDesktopEndWithABlank) {
  Open();

  EXPECT_EQ(ProfilesStoredFor({u"Desktop", u"Mobile Device", u"Extended Desktop"}),
            "desktop extendedDesktop mobileDevice ");
}

TEST_F(AppSettingsDlgStoreTest, AllProfilesRemoveTheElement) {
  Open("<id>com.game</id><supportedProfiles>desktop</supportedProfiles>");

  EXPECT_EQ(ProfilesStoredFor(
                {u"Desktop", u"Mobile Device", u"Extended Desktop", u"Extended Mobile Device"}),
            "(none)");
}

TEST_F(AppSettingsDlgStoreTest, NoProfileRemovesTheElementWhichReadsBackAsAll) {
  Open("<id>com.game</id><supportedProfiles>desktop</supportedProfiles>");

  EXPECT_EQ(ProfilesStoredFor({}), "(none)");

  page.LoadFromDescriptor();
  for (const char16_t* label :
       {u"Desktop", u"Mobile Device", u"Extended Desktop", u"Extended Mobile Device"}) {
    EXPECT_TRUE(BoxOf(label).checked);
  }
}

}  // namespace
}  // namespace qutav::test
