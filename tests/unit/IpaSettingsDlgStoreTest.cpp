#include "GeneralPageTest.h"
#include "settings_ui/IpaSettingsDlg.h"

namespace qutav::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class IpaSettingsDlgStoreTest : public GeneralPageTest<CIpaSettingsDlg> {
 protected:
  std::string AspectRatioStoredFor(const std::u16string& row) {
    auto& combo = ComboOf(u"Aspect ratio:");
    combo.Choose(combo.FindStringExact(row));
    EXPECT_EQ(page.StoreToDescriptor(), 0);
    return TextOf("aspectRatio");
  }
  std::string RenderModeStoredFor(int row) {
    ComboOf(u"Render mode:").Choose(row);
    EXPECT_EQ(page.StoreToDescriptor(), 0);
    return TextOf("renderMode");
  }
  std::u16string OutputStoredFor(const std::u16string& typed) {
    EditOf(u"Output file:").Type(typed);
    EXPECT_EQ(page.StoreToDescriptor(), 0);
    return SettingsGet(keys::kTavDestination);
  }
  int StoreWithId(const std::u16string& id) {
    EditOf(u"App ID:").Type(id);
    return page.StoreToDescriptor();
  }
};

TEST_F(IpaSettingsDlgStoreTest, StoringWritesEveryFieldAndSavesTheFile) {
  Open(
      "<id>old</id><filename>Old</filename><name>Old</name><versionNumber>1</versionNumber>"
      "<versionLabel>old</versionLabel><initialWindow/>");
  EditOf(u"App name:").Type(u"New & Better");
  EditOf(u"App ID:").Type(u"com.new");
  EditOf(u"Version:").Type(u"2.0");
  EditOf(u"Version label:").Type(u"new");
  ComboOf(u"Aspect ratio:").Choose(1);
  BoxOf(u"Full screen").Click();
  ComboOf(u"Render mode:").Choose(2);

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(Children(),
            "<id>com.new</id><filename>New &amp; Better</filename><name>New &amp; Better</name>"
            "<versionNumber>2.0</versionNumber><versionLabel>new</versionLabel>"
            "<initialWindow><aspectRatio>landscape</aspectRatio><renderMode>gpu</renderMode>"
            "<fullScreen>true</fullScreen><autoOrients>false</autoOrients></initialWindow>");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(IpaSettingsDlgStoreTest, TheFileOnDiskHasTheStoredFields) {
  Open();
  EditOf(u"App name:").Type(u"New");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(SavedFile(), HasSubstr("<name>New</name>"));
}

TEST_F(IpaSettingsDlgStoreTest, NewElementsAreAppendedWithTheFileNameBeforeTheName) {
  Open("<initialWindow/>");
  EditOf(u"App name:").Type(u"Fun");
  EditOf(u"App ID:").Type(u"com.fun");
  EditOf(u"Version:").Type(u"1.0");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(Children(),
              ::testing::EndsWith("<filename>Fun</filename><name>Fun</name>"
                                  "<versionNumber>1.0</versionNumber><versionLabel></versionLabel>"
                                  "<id>com.fun</id>"));
}

TEST_F(IpaSettingsDlgStoreTest, AFileThatCannotBeSavedIsPassedOverInSilence) {
  Open();
  files.readOnly.insert(u"C:/docs/Game-app.xml");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_TRUE(frontEnd.messages.empty());
}

// --- Window --------------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgStoreTest, PortraitAndLandscapeAreWrittenAndAutoRemovesTheElement) {
  Open();

  EXPECT_EQ(AspectRatioStoredFor(u"Portrait"), "portrait");
  EXPECT_EQ(AspectRatioStoredFor(u"Landscape"), "landscape");
  EXPECT_EQ(AspectRatioStoredFor(u"Auto"), "(none)");
  EXPECT_EQ(AspectRatioStoredFor(u"Auto"), "(none)");
}

TEST_F(IpaSettingsDlgStoreTest, AnAspectRatioInCapitalsIsStoredAsPortrait) {
  Open("<id>com.game</id><initialWindow><aspectRatio>LANDSCAPE</aspectRatio></initialWindow>");
  EXPECT_EQ(ComboOf(u"Aspect ratio:").text, u"Portrait");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("aspectRatio"), "portrait");
}

TEST_F(IpaSettingsDlgStoreTest, EachRenderModeHasItsWord) {
  Open();

  EXPECT_EQ(RenderModeStoredFor(0), "auto");
  EXPECT_EQ(RenderModeStoredFor(1), "cpu");
  EXPECT_EQ(RenderModeStoredFor(2), "gpu");
  EXPECT_EQ(RenderModeStoredFor(3), "direct");
}

TEST_F(IpaSettingsDlgStoreTest, WithoutAChosenRowTheRenderModeIsDirect) {
  Open();
  ComboOf(u"Render mode:").SetCurSel(-1);

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("renderMode"), "direct");
}

TEST_F(IpaSettingsDlgStoreTest, AMissingRenderModeIsAddedAsCpu) {
  Open("<id>com.game</id><initialWindow/>");
  EXPECT_EQ(ComboOf(u"Render mode:").text, u"CPU");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("renderMode"), "cpu");
}

TEST_F(IpaSettingsDlgStoreTest, BoxesAreStoredAsTrueAndFalse) {
  Open("<id>com.game</id><initialWindow><fullScreen>true</fullScreen></initialWindow>");
  BoxOf(u"Full screen").Click();
  BoxOf(u"Auto orientation").Click();

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("fullScreen"), "false");
  EXPECT_EQ(TextOf("autoOrients"), "true");
}

TEST_F(IpaSettingsDlgStoreTest, WithoutAnInitialWindowItsValuesAreDroppedAndTheOthersStored) {
  Open("<id>com.game</id><name>Game</name>");
  ComboOf(u"Aspect ratio:").Choose(1);
  BoxOf(u"Full screen").Click();

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(
      Children(),
      "<id>com.game</id><name>Game</name><filename>Game</filename><versionLabel></versionLabel>");
  EXPECT_TRUE(frontEnd.messages.empty());
}

// --- Names ---------------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgStoreTest, ALocalisedNameAndItsFileNameStay) {
  Open(
      "<id>com.game</id><filename>Old</filename><name><text xml:lang=\"en\">Game</text></name>"
      "<initialWindow/>");
  EditOf(u"App name:").text = u"typed all the same";

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(Children(), HasSubstr("<filename>Old</filename>"
                                    "<name><text xml:lang=\"en\">Game</text></name>"));
}

TEST_F(IpaSettingsDlgStoreTest, AnEmptyNameAndVersionLeaveTheElements) {
  Open(
      "<id>com.game</id><filename>Old</filename><name>Old</name>"
      "<versionNumber>1</versionNumber><initialWindow/>");
  EditOf(u"App name:").Type(u"");
  EditOf(u"Version:").Type(u"");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("filename"), "Old");
  EXPECT_EQ(TextOf("name"), "Old");
  EXPECT_EQ(TextOf("versionNumber"), "1");
}

TEST_F(IpaSettingsDlgStoreTest, AnEmptyVersionLabelIsStored) {
  Open("<id>com.game</id><versionLabel>old</versionLabel><initialWindow/>");
  EditOf(u"Version label:").Type(u"");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(TextOf("versionLabel"), "");
}

// --- Output file ---------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgStoreTest, TheOutputFileIsStoredWithForwardSlashesAsAChange) {
  Open();

  EXPECT_EQ(OutputStoredFor(u"C:\\out\\Fun.apk"), u"C:/out/Fun.apk");

  EXPECT_TRUE(page.changed);
}

TEST_F(IpaSettingsDlgStoreTest, AnOutputFileAsItWasIsNoChange) {
  SettingsSet(keys::kTavDestination, u"C:/out/Fun.apk");
  Open();

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"C:/out/Fun.apk");
  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgStoreTest, AnEmptyOutputFileLeavesTheStoredOne) {
  SettingsSet(keys::kTavDestination, u"C:/out/Fun.apk");
  Open();

  EXPECT_EQ(OutputStoredFor(u""), u"C:/out/Fun.apk");

  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgStoreTest, AnOutputFileWithoutTheExtensionGetsIt) {
  Open();

  EXPECT_EQ(OutputStoredFor(u"Fun"), u"Fun.apk");
  EXPECT_EQ(OutputStoredFor(u"apk"), u"apk.apk");
  EXPECT_EQ(OutputStoredFor(u".apk"), u".apk");
}

TEST_F(IpaSettingsDlgStoreTest, AnExtensionInCapitalsGetsAnother) {
  Open();

  EXPECT_EQ(OutputStoredFor(u"Fun.APK"), u"Fun.APK.apk");
}

TEST_F(IpaSettingsDlgStoreTest, AnOutputFileOf300CharactersIsCutAt256BeforeTheExtension) {
  Open();

  EXPECT_EQ(OutputStoredFor(std::u16string(300, u'x')), std::u16string(256, u'x') + u".apk");
  EXPECT_EQ(OutputStoredFor(std::u16string(252, u'x') + u".apk"),
            std::u16string(252, u'x') + u".apk");
}

// --- Application id ------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgStoreTest, AnEmptyIdIsRefusedWithAMessage) {
  Open();

  EXPECT_EQ(StoreWithId(u""), 1);

  ExpectRefusedId();
}

TEST_F(IpaSettingsDlgStoreTest, AnIdWithAHyphenIsRefusedWithAMessage) {
  Open();

  EXPECT_EQ(StoreWithId(u"com.my-game"), 1);

  ExpectRefusedId();
}

TEST_F(IpaSettingsDlgStoreTest, ARefusedIdLeavesWhatStandsBeforeItStoredAndNothingSaved) {
  Include({u"old.xml"});
  SettingsSet(keys::kProcessorType, u"arm");
  Open("<id>com.game</id><initialWindow/>");
  frontEnd.chosenFile = u"C:\\docs\\new.xml";
  Press(u"Add file");
  Find<RadioButton>(page, u" Intel x86 (32 bit)").Click();
  EditOf(u"App name:").Type(u"Fun");
  ComboOf(u"Render mode:").Choose(3);
  EditOf(u"Output file:").Type(u"Fun");
  const std::string before = SavedFile();

  EXPECT_EQ(StoreWithId(u"my game"), 1);

  EXPECT_EQ(TextOf("name"), "Fun");
  EXPECT_EQ(TextOf("renderMode"), "direct");
  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"Fun.apk");
  EXPECT_EQ(SettingsGet(keys::kProcessorType), u"x86");
  EXPECT_EQ(TextOf("id"), "com.game");
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"1");
  EXPECT_EQ(SavedFile(), before);
}

TEST_F(IpaSettingsDlgStoreTest, AnIdThatBeginsWithADigitOrADotIsAccepted) {
  Open();

  EXPECT_EQ(StoreWithId(u"1game"), 0);
  EXPECT_EQ(TextOf("id"), "1game");
  EXPECT_EQ(StoreWithId(u".game"), 0);
  EXPECT_EQ(TextOf("id"), ".game");
}

TEST_F(IpaSettingsDlgStoreTest, AnIdOf212CharactersIsTheLongest) {
  Open();

  EXPECT_EQ(StoreWithId(std::u16string(212, u'a')), 0);
  EXPECT_TRUE(frontEnd.messages.empty());
  EXPECT_EQ(StoreWithId(std::u16string(213, u'a')), 1);
  ExpectRefusedId();
}

TEST_F(IpaSettingsDlgStoreTest, TheIdIsStoredWithoutThePrefixBeforeItsField) {
  Open();

  EXPECT_EQ(StoreWithId(u"com.fun"), 0);

  EXPECT_EQ(TextOf("id"), "com.fun");
  EXPECT_THAT(SavedFile(), Not(HasSubstr("tav.com.fun")));
}

// --- Processor -----------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgStoreTest, EachProcessorHasItsWord) {
  Open();

  for (const auto& [label, word] :
       {std::pair(u" Intel x86 (32 bit)", u"x86"), std::pair(u" ARMv8 (64 bit)", u"armv8"),
        std::pair(u" ARMv7 (32 bit)", u"arm")}) {
    Find<RadioButton>(page, label).Click();
    EXPECT_EQ(page.StoreToDescriptor(), 0);
    EXPECT_EQ(SettingsGet(keys::kProcessorType), word);
  }
}

TEST_F(IpaSettingsDlgStoreTest, StoringTheProcessorIsNoChange) {
  SettingsSet(keys::kTavDestination, u"Game.apk");
  SettingsSet(keys::kProcessorType, u"x86");
  Open();
  SettingsSet(keys::kProcessorType, u"arm");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_EQ(SettingsGet(keys::kProcessorType), u"x86");
  EXPECT_FALSE(page.changed);
}

}  // namespace
}  // namespace qutav::test
