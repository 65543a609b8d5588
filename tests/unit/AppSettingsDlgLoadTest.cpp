#include "GeneralPageTest.h"
#include "settings_ui/AppSettingsDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

class AppSettingsDlgLoadTest : public GeneralPageTest<CAppSettingsDlg> {
 protected:
  std::u16string OutputShownFor(const std::u16string& stored) {
    SettingsSet(keys::kTavDestination, stored);
    page.LoadFromDescriptor();
    return EditOf(u"Output file:").text;
  }
  std::u16string WindowStyleFor(const std::string& children) {
    CAppSettingsDlg shown;
    LoadChildren("<initialWindow>" + children + "</initialWindow>");
    shown.Create();
    return Find<ComboBox>(shown, u"Window style:").text;
  }
  // The checked boxes of "DMEX": Desktop, Mobile Device, Extended Desktop, Extended Mobile Device.
  static std::string ProfilesOf(const CAppSettingsDlg& shown) {
    std::string checked;
    for (const auto& [label, letter] :
         {std::pair(u"Desktop", 'D'), std::pair(u"Mobile Device", 'M'),
          std::pair(u"Extended Desktop", 'E'), std::pair(u"Extended Mobile Device", 'X')}) {
      if (Find<CheckBox>(shown, label).checked) checked += letter;
    }
    return checked;
  }
  std::string ProfilesFor(const std::string& value) {
    CAppSettingsDlg shown;
    LoadChildren("<supportedProfiles>" + value + "</supportedProfiles>");
    shown.Create();
    return ProfilesOf(shown);
  }
  static std::string NamespaceAfterShowing() {
    CAppSettingsDlg shown;
    shown.Create();
    return Namespace();
  }
};

TEST_F(AppSettingsDlgLoadTest, TheControlsStandInTheOrderOfThePage) {
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);

  EXPECT_THAT(labels,
              ElementsAre(u"Output file:", u"Browse output file", u"Windows installer (.exe)",
                          u"File name:", u"App name:", u"Version:", u"App ID:",
                          u"Example: com.yourdomain.appname", u"Description:", u"Copyright:",
                          u"Window style:", u"Profiles:", u"Desktop", u"Mobile Device",
                          u"Extended Desktop", u"Extended Mobile Device", u"Included files",
                          u"Add file", u"Delete", u"Add folder"));
  EXPECT_EQ(page.EnglishTitle(), u"General");
  EXPECT_EQ(page.Title(), u"General");
  EXPECT_EQ(page.ClassName(), u"CAppSettingsDlg");
  EXPECT_EQ(EditOf(u"Description:").style, EditStyle::kMultiLine);
}

TEST_F(AppSettingsDlgLoadTest, TheWindowStylesAreThree) {
  Open();

  EXPECT_THAT(
      ComboOf(u"Window style:").Rows(),
      ElementsAre(u"System Chrome", u"Custom Chrome (opaque)", u"Custom Chrome (transparent)"));
  EXPECT_EQ(ComboOf(u"Window style:").style, ComboStyle::kDropList);
}

TEST_F(AppSettingsDlgLoadTest, ThePageIsInitialisedOnceItIsShownAndNotChanged) {
  EXPECT_FALSE(page.initialised);

  Open();

  EXPECT_TRUE(page.initialised);
  EXPECT_FALSE(page.changed);
  EXPECT_EQ(page.descriptorPath, u"C:\\docs\\Game-app.xml");
}

TEST_F(AppSettingsDlgLoadTest, LoadingGivesZeroAlsoWithoutADescriptor) {
  EXPECT_EQ(page.LoadFromDescriptor(), 0);
}

TEST_F(AppSettingsDlgLoadTest, ShowingThePageMakesAParserReadyAndDestroyingItClosesIt) {
  {
    CAppSettingsDlg shown;
    shown.Create();
    EXPECT_TRUE(CurrentDescriptor.IsParserReady());
  }

  EXPECT_FALSE(CurrentDescriptor.IsParserReady());
}

TEST_F(AppSettingsDlgLoadTest, DestroyingAPageThatWasNeverShownClosesTheDescriptorToo) {
  LoadChildren("");

  { const CAppSettingsDlg constructed; }

  EXPECT_FALSE(CurrentDescriptor.IsParserReady());
}

// --- Namespace -----------------------------------------------------------------------------------

TEST_F(AppSettingsDlgLoadTest, OnlyABareFirstFormatIsBroughtForwardAndItsVersionStays) {
  for (const char* format : {"1.0", "1.1"}) {
    CAppSettingsDlg shown;
    Load("<application xmlns=\"" + std::string(format) + "\"><version>1.5</version></application>");

    shown.Create();

    EXPECT_EQ(Namespace(), "http://ns.zenvoka.example/tav/application/33.0");
    EXPECT_EQ(TextOf("version"), "1.5");
  }
}

TEST_F(AppSettingsDlgLoadTest, ARealNamespaceStaysWhateverTheSampleSays) {
  Load("<application xmlns=\"http://ns.zenvoka.example/tav/application/1.0\"/>");
  EXPECT_EQ(NamespaceAfterShowing(), "http://ns.zenvoka.example/tav/application/1.0");

  Load("<application xmlns=\"http://ns.zenvoka.example/tav/application/26.0\"/>");
  EXPECT_EQ(NamespaceAfterShowing(), "http://ns.zenvoka.example/tav/application/26.0");
}

TEST_F(AppSettingsDlgLoadTest, WithoutASampleTheNamespaceStays) {
  files.Delete(u"C:/sdk/samples/descriptor-sample.xml");
  Load("<application xmlns=\"1.0\"/>");

  ::testing::internal::CaptureStdout();  // the parser tells that the sample is missing
  EXPECT_EQ(NamespaceAfterShowing(), "1.0");
  ::testing::internal::GetCapturedStdout();
}

// --- Fields --------------------------------------------------------------------------------------

TEST_F(AppSettingsDlgLoadTest, TextFieldsComeFromTheDescriptor) {
  Open(
      "<id>com.game</id><filename>GameFile</filename><name>My Game</name>"
      "<versionNumber>1.2.3</versionNumber><description>Fun</description>"
      "<copyright>(c) Us</copyright>");

  EXPECT_EQ(EditOf(u"File name:").text, u"GameFile");
  EXPECT_EQ(EditOf(u"App name:").text, u"My Game");
  EXPECT_EQ(EditOf(u"App ID:").text, u"com.game");
  EXPECT_EQ(EditOf(u"Version:").text, u"1.2.3");
  EXPECT_EQ(EditOf(u"Description:").text, u"Fun");
  EXPECT_EQ(EditOf(u"Copyright:").text, u"(c) Us");
}

TEST_F(AppSettingsDlgLoadTest, AnEmptyDescriptorLeavesAllFieldsEmptyTheIdToo) {
  Open("");

  for (const char16_t* label :
       {u"File name:", u"App name:", u"App ID:", u"Version:", u"Description:", u"Copyright:"}) {
    EXPECT_EQ(EditOf(label).text, u"");
    EXPECT_TRUE(EditOf(label).enabled);
  }
}

TEST_F(AppSettingsDlgLoadTest, LocalisedNameAndDescriptionDisableTheirFields) {
  Open(
      "<name><text xml:lang=\"en\">Game</text></name>"
      "<description><text xml:lang=\"en\">Fun</text></description>");

  EXPECT_FALSE(EditOf(u"App name:").enabled);
  EXPECT_EQ(EditOf(u"App name:").text, u"");
  EXPECT_FALSE(EditOf(u"Description:").enabled);
  EXPECT_EQ(EditOf(u"Description:").text, u"");
  EXPECT_EQ(EditOf(u"Description:").fontFace, u"");
}

TEST_F(AppSettingsDlgLoadTest, ANameAndADescriptionThatWereReadEnableTheirFields) {
  EditOf(u"App name:").enabled = false;
  EditOf(u"Description:").enabled = false;

  Open("<name>My Game</name><description>Fun</description>");

  EXPECT_TRUE(EditOf(u"App name:").enabled);
  EXPECT_TRUE(EditOf(u"Description:").enabled);
}

TEST_F(AppSettingsDlgLoadTest, ADescriptionsLinesAreShownAsLines) {
  Open("<description>one\ntwo\n\nthree</description>");

  EXPECT_EQ(EditOf(u"Description:").text, u"one\r\ntwo\r\n\r\nthree");
}

TEST_F(AppSettingsDlgLoadTest, OnlyADescriptionThatWasReadHasTheEastAsianFace) {
  Open("<description>Fun</description><copyright>Us</copyright>");

  EXPECT_EQ(EditOf(u"Description:").fontFace, u"SimSun-18030");
  EXPECT_EQ(EditOf(u"Copyright:").fontFace, u"");
}

TEST_F(AppSettingsDlgLoadTest, AnOlderSystemShowsDescriptionAndCopyrightInTheEastAsianFace) {
  folders.majorVersion = 5;

  Open("");

  EXPECT_EQ(EditOf(u"Description:").fontFace, u"SimSun-18030");
  EXPECT_EQ(EditOf(u"Copyright:").fontFace, u"SimSun-18030");
  EXPECT_EQ(EditOf(u"App name:").fontFace, u"");
}

TEST_F(AppSettingsDlgLoadTest, ANewerSystemKeepsTheDialogsFace) {
  Open("");

  EXPECT_EQ(EditOf(u"Description:").fontFace, u"");
  EXPECT_EQ(EditOf(u"Copyright:").fontFace, u"");
}

TEST_F(AppSettingsDlgLoadTest, TheInstallerIsCheckedByTrueAlone) {
  for (const auto& [stored, checked] : {std::pair(u"true", true), std::pair(u"false", false),
                                        std::pair(u"", false), std::pair(u"TRUE", false)}) {
    CAppSettingsDlg shown;
    SettingsSet(keys::kPublishExe, stored);

    shown.Create();

    EXPECT_EQ(Find<CheckBox>(shown, u"Windows installer (.exe)").checked, checked);
  }
}

// --- Output file ---------------------------------------------------------------------------------

TEST_F(AppSettingsDlgLoadTest, WithoutAnOutputFileTheMoviesNameStandsThere) {
  EXPECT_EQ(OutputShownFor(u""), u"Game.apk");
}

TEST_F(AppSettingsDlgLoadTest, AnOutputFileInAFolderThatExistsIsShownWithBackslashes) {
  files.PutFolder(u"C:/out");

  EXPECT_EQ(OutputShownFor(u"C:/out/Fun.apk"), u"C:\\out\\Fun.apk");
  EXPECT_EQ(OutputShownFor(u"C:/out/Fun"), u"C:\\out\\Fun.apk");
}

TEST_F(AppSettingsDlgLoadTest, AnOutputFileInFoldersThatDoNotExistBecomesTheMoviesName) {
  EXPECT_EQ(OutputShownFor(u"C:/gone/Fun.apk"), u"Game.apk");
  EXPECT_EQ(OutputShownFor(u"C:\\gone\\Fun.apk"), u"Game.apk");
}

TEST_F(AppSettingsDlgLoadTest, AnOutputFileWithoutAFolderStays) {
  EXPECT_EQ(OutputShownFor(u"Fun.exe"), u"Fun.exe.apk");
}

TEST_F(AppSettingsDlgLoadTest, TheExtensionAnywhereInAnyCaseIsEnough) {
  EXPECT_EQ(OutputShownFor(u"Fun.APK"), u"Fun.APK");
  EXPECT_EQ(OutputShownFor(u"Fun.apk.old"), u"Fun.apk.old");
}

// --- Window style --------------------------------------------------------------------------------

TEST_F(AppSettingsDlgLoadTest, TheWindowStyleComesFromChromeAndTransparency) {
  const std::u16string standard = u"System Chrome";

  EXPECT_EQ(WindowStyleFor("<systemChrome> none </systemChrome><transparent>false</transparent>"),
            u"Custom Chrome (opaque)");
  EXPECT_EQ(WindowStyleFor("<systemChrome>none</systemChrome><transparent> true </transparent>"),
            u"Custom Chrome (transparent)");
  EXPECT_EQ(WindowStyleFor("<systemChrome>standard</systemChrome><transparent>false</transparent>"),
            standard);
  EXPECT_EQ(WindowStyleFor("<systemChrome>standard</systemChrome><transparent>true</transparent>"),
            standard);
  EXPECT_EQ(WindowStyleFor("<systemChrome>NONE</systemChrome><transparent>true</transparent>"),
            standard);
  EXPECT_EQ(WindowStyleFor("<systemChrome>none</systemChrome><transparent/>"), standard);
}

TEST_F(AppSettingsDlgLoadTest, WithoutOneOfTheTwoTheWindowStyleComesFromTheSettings) {
  SettingsSet(keys::kWindowType, u"opaque");
  EXPECT_EQ(WindowStyleFor("<systemChrome>none</systemChrome>"), u"Custom Chrome (opaque)");
  EXPECT_EQ(WindowStyleFor("<transparent>true</transparent>"), u"Custom Chrome (opaque)");

  SettingsSet(keys::kWindowType, u"transparent");
  EXPECT_EQ(WindowStyleFor(""), u"Custom Chrome (transparent)");

  SettingsSet(keys::kWindowType, u"standard");
  EXPECT_EQ(WindowStyleFor(""), u"System Chrome");
  SettingsSet(keys::kWindowType, u"");
  EXPECT_EQ(WindowStyleFor(""), u"System Chrome");
}

// --- Profiles ------------------------------------------------------------------------------------

TEST_F(AppSettingsDlgLoadTest, EachProfileIsCheckedWhereItsWordStands) {
  EXPECT_EQ(ProfilesFor("desktop"), "D");
  EXPECT_EQ(ProfilesFor("mobileDevice"), "M");
  EXPECT_EQ(ProfilesFor("extendedDesktop"), "E");
  EXPECT_EQ(ProfilesFor("extendedMobileDevice"), "X");
  EXPECT_EQ(ProfilesFor("\n desktop extendedDesktop\tmobileDevice extendedMobileDevice"), "DMEX");
}

TEST_F(AppSettingsDlgLoadTest, ProfilesAreSoughtAsTheyStandAlsoInsideWords) {
  EXPECT_EQ(ProfilesFor("Desktop MOBILEDEVICE"), "");
  EXPECT_EQ(ProfilesFor("xdesktopx"), "D");
  EXPECT_EQ(ProfilesFor(""), "");
}

TEST_F(AppSettingsDlgLoadTest, NoSuchElementStandsForAllProfiles) {
  Open("");

  EXPECT_EQ(ProfilesOf(page), "DMEX");
}

// --- Included files ------------------------------------------------------------------------------

TEST_F(AppSettingsDlgLoadTest, MovieDescriptorExtensionsAndItemsFillTheList) {
  UseExtensions({u"a.zux"});
  Include({u"data/one.xml", u"", u"C:/x/two.xml"});

  Open();

  EXPECT_THAT(
      Find<ListBox>(page, u"Included files").Rows(),
      ElementsAre(u"Game.qmv", u"Game-app.xml", u"a.zux", u"data\\one.xml", u"C:\\x\\two.xml"));
  EXPECT_EQ(Find<ListBox>(page, u"Included files").HorizontalExtent(), 13 * 7);
}

}  // namespace
}  // namespace qutav::test
