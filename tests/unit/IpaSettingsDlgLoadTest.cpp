#include "GeneralPageTest.h"
#include "settings_ui/IpaSettingsDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

class IpaSettingsDlgLoadTest : public GeneralPageTest<CIpaSettingsDlg> {
 protected:
  // The processor's radios as "arm* x86 armv8-": * is checked, - is disabled.
  static std::string ProcessorsOf(const CIpaSettingsDlg& shown) {
    std::string state;
    for (const auto& [label, name] :
         {std::pair(u" ARMv7 (32 bit)", "arm"), std::pair(u" Intel x86 (32 bit)", " x86"),
          std::pair(u" ARMv8 (64 bit)", " armv8")}) {
      const auto& radio = Find<RadioButton>(shown, label);
      state += name;
      if (radio.checked) state += "*";
      if (!radio.enabled) state += "-";
    }
    return state;
  }

  // Those of a page that is shown at this level with this stored type.
  static std::string ProcessorsAt(const std::u16string& level, const std::u16string& type) {
    SettingsSet(keys::kRuntimeKit, level);
    SettingsSet(keys::kProcessorType, type);
    CIpaSettingsDlg shown;
    shown.Create();
    return ProcessorsOf(shown);
  }
};

TEST_F(IpaSettingsDlgLoadTest, TheControlsStandInTheOrderOfThePage) {
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);

  EXPECT_THAT(labels, ElementsAre(u"Output file:", u"Browse output file", u"App name:", u"tav.",
                                  u"App ID:", u"Example: com.yourdomain.appname", u"Version:",
                                  u"Version label:", u"Aspect ratio:", u"Full screen",
                                  u"Auto orientation", u"Render mode:", u"Processor:",
                                  u" ARMv7 (32 bit)", u" Intel x86 (32 bit)", u" ARMv8 (64 bit)",
                                  u"Included files:", u"Add file", u"Delete", u"Add folder"));
  EXPECT_EQ(page.EnglishTitle(), u"General");
  EXPECT_EQ(page.Title(), u"General");
  EXPECT_EQ(page.ClassName(), u"CIpaSettingsDlg");
}

TEST_F(IpaSettingsDlgLoadTest, TheListsOfferTheirRowsAndNothingElse) {
  Open();

  EXPECT_THAT(ComboOf(u"Aspect ratio:").Rows(), ElementsAre(u"Portrait", u"Landscape", u"Auto"));
  EXPECT_THAT(ComboOf(u"Render mode:").Rows(), ElementsAre(u"Auto", u"CPU", u"GPU", u"Direct"));
  EXPECT_EQ(ComboOf(u"Aspect ratio:").style, ComboStyle::kDropList);
  EXPECT_EQ(ComboOf(u"Render mode:").style, ComboStyle::kDropList);
}

TEST_F(IpaSettingsDlgLoadTest, EachListHasAWordOfItsOwnForAuto) {
  language.texts[8115] = u"Automática";
  language.texts[8116] = u"Automático";

  Open();

  EXPECT_THAT(ComboOf(u"Aspect ratio:").Rows(),
              ElementsAre(u"Portrait", u"Landscape", u"Automática"));
  EXPECT_THAT(ComboOf(u"Render mode:").Rows(),
              ElementsAre(u"Automático", u"CPU", u"GPU", u"Direct"));
}

TEST_F(IpaSettingsDlgLoadTest, ThePageIsInitialisedOnceItIsShownAndNotChanged) {
  EXPECT_FALSE(page.initialised);

  Open();

  EXPECT_TRUE(page.initialised);
  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgLoadTest, LoadingGivesZeroAlsoWithoutADescriptor) {
  EXPECT_EQ(page.LoadFromDescriptor(), 0);
}

TEST_F(IpaSettingsDlgLoadTest, ShowingThePageMakesAParserReady) {
  ASSERT_FALSE(CurrentDescriptor.IsParserReady());

  page.Create();

  EXPECT_TRUE(CurrentDescriptor.IsParserReady());
}

TEST_F(IpaSettingsDlgLoadTest, TheDescriptorsPathHasBackslashes) {
  SettingsSet(keys::kMovieFolder, u"C:/docs/my games/");

  Open();

  EXPECT_EQ(page.descriptorPath, u"C:\\docs\\my games\\Game-app.xml");
}

TEST_F(IpaSettingsDlgLoadTest, DestroyingThePageClosesTheDescriptor) {
  {
    CIpaSettingsDlg visited;
    LoadChildren("<id>com.game</id>");
    visited.Create();
    EXPECT_TRUE(CurrentDescriptor.IsParserReady());
  }

  EXPECT_FALSE(CurrentDescriptor.IsParserReady());
}

// --- Namespace -----------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgLoadTest, AnOtherNamespaceBecomesTheSamplesAndTheVersionMoves) {
  PutSample("http://ns.zenvoka.example/tav/application/51.0");

  Open("<id>com.game</id><version>1.5</version>");

  EXPECT_EQ(Namespace(), "http://ns.zenvoka.example/tav/application/51.0");
  EXPECT_EQ(TextOf("version"), "(none)");
  EXPECT_EQ(TextOf("versionNumber"), "1.5");
  EXPECT_EQ(EditOf(u"Version:").text, u"1.5");
}

TEST_F(IpaSettingsDlgLoadTest, AnEmptyOrMissingNamespaceIsBroughtForwardToo) {
  for (const char* head : {"<application>", "<application xmlns=\"\">"}) {
    CIpaSettingsDlg visited;
    Load(std::string(head) + "<version>1.5</version></application>");

    visited.Create();

    EXPECT_EQ(Namespace(), "http://ns.zenvoka.example/tav/application/33.0") << head;
    EXPECT_EQ(TextOf("versionNumber"), "1.5") << head;
  }
}

TEST_F(IpaSettingsDlgLoadTest, AnEqualNamespaceChangesNothingEvenWithAVersion) {
  Open("<version>1.5</version><versionNumber>2.0</versionNumber>");

  EXPECT_EQ(TextOf("version"), "1.5");
  EXPECT_EQ(TextOf("versionNumber"), "2.0");
}

TEST_F(IpaSettingsDlgLoadTest, WithoutASampleTheNamespaceStays) {
  files.Delete(u"C:/sdk/samples/descriptor-sample.xml");

  CaptureStdout();  // the parser tells that the sample is missing
  Open("<version>1.5</version>");
  GetCapturedStdout();

  EXPECT_EQ(Namespace(), "http://ns.zenvoka.example/tav/application/33.0");
  EXPECT_EQ(TextOf("version"), "1.5");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(IpaSettingsDlgLoadTest, ANamespaceBroughtForwardReachesTheFileOnlyAtTheStore) {
  PutSample("http://ns.zenvoka.example/tav/application/51.0");
  Open();
  EXPECT_THAT(SavedFile(), HasSubstr("application/33.0\""));

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(SavedFile(), HasSubstr("application/51.0\""));
}

TEST_F(IpaSettingsDlgLoadTest, ANamespaceThatWasNotSavedIsBroughtForwardAgainAtTheNextOpening) {
  PutSample("http://ns.zenvoka.example/tav/application/51.0");
  {
    CIpaSettingsDlg cancelled;
    LoadChildren("<id>com.game</id><version>1.5</version>");
    cancelled.Create();
  }
  EXPECT_THAT(SavedFile(), HasSubstr("application/33.0\"><id>com.game</id><version>1.5</version>"));

  CurrentDescriptor.InitParser();
  ASSERT_EQ(CurrentDescriptor.Load(kDescriptorPath), kLoaded);
  page.Create();

  EXPECT_EQ(Namespace(), "http://ns.zenvoka.example/tav/application/51.0");
  EXPECT_EQ(TextOf("versionNumber"), "1.5");
}

// --- Target platform -----------------------------------------------------------------------------

constexpr char kWithIcon[] =
    "<id>com.game</id><icon>\n<image48x48>i/48.png</image48x48>\n</icon><initialWindow/>";

TEST_F(IpaSettingsDlgLoadTest, AnotherOldTargetClearsTheIcons) {
  SettingsSet(keys::kOldTargetPlatform, u"iOS");

  Open(kWithIcon);

  EXPECT_EQ(TextOf("image48x48"), "(none)");
  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Android");
}

TEST_F(IpaSettingsDlgLoadTest, ADocumentThatNeverHadATargetLosesItsIconsOnce) {
  SettingsSet(keys::kOldTargetPlatform, u"");

  Open(kWithIcon);

  EXPECT_EQ(TextOf("image48x48"), "(none)");
  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Android");
}

TEST_F(IpaSettingsDlgLoadTest, AndroidAndAFreshDescriptorKeepTheIcons) {
  for (const char16_t* old : {u"Android", u"Nothing"}) {
    CIpaSettingsDlg visited;
    SettingsSet(keys::kOldTargetPlatform, old);
    LoadChildren(kWithIcon);

    visited.Create();

    EXPECT_EQ(TextOf("image48x48"), "i/48.png");
    EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Android");
  }
}

TEST_F(IpaSettingsDlgLoadTest, TheTargetIsAndroidOnTheIosFormToo) {
  SettingsSet(keys::kPublishIpa, u"true");
  SettingsSet(keys::kOldTargetPlatform, u"iOS");

  Open();

  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Android");
  EXPECT_EQ(EditOf(u"Output file:").text, u"Game.apk");
}

// --- Processor -----------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgLoadTest, EachLevelAllowsItsProcessors) {
  EXPECT_EQ(ProcessorsAt(u"TAV1.0", u""), "arm* x86- armv8-");
  EXPECT_EQ(ProcessorsAt(u"TAV13.0", u"x86"), "arm* x86- armv8-");
  EXPECT_EQ(ProcessorsAt(u"TAV14.0", u"x86"), "arm x86* armv8-");
  EXPECT_EQ(ProcessorsAt(u"TAV32.0", u"x86"), "arm x86* armv8-");
  EXPECT_EQ(ProcessorsAt(u"TAV33.0", u"x86"), "arm x86* armv8");
  EXPECT_EQ(ProcessorsAt(u"TAV33.0", u"armv8"), "arm x86 armv8*");
  EXPECT_EQ(ProcessorsAt(u"TAV33.0", u"arm"), "arm* x86 armv8");
  EXPECT_EQ(ProcessorsAt(u"TAV33.0", u"ARMV8"), "arm* x86 armv8");
}

TEST_F(IpaSettingsDlgLoadTest, AProcessorThatTheLevelLacksIsReplacedAtLoading) {
  SettingsSet(keys::kRuntimeKit, u"TAV20.0");
  SettingsSet(keys::kProcessorType, u"armv8");

  Open();

  EXPECT_EQ(ProcessorsOf(page), "arm* x86 armv8-");
  EXPECT_EQ(page.processor, 0);
  EXPECT_EQ(SettingsGet(keys::kProcessorType), u"arm");
  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgLoadTest, AProcessorThatIsAllowedStays) {
  SettingsSet(keys::kProcessorType, u"armv8");

  Open();

  EXPECT_EQ(ProcessorsOf(page), "arm x86 armv8*");
  EXPECT_EQ(page.processor, 2);
  EXPECT_EQ(SettingsGet(keys::kProcessorType), u"armv8");
}

TEST_F(IpaSettingsDlgLoadTest, ADocumentWithoutAProcessorGetsArm) {
  Open();

  EXPECT_EQ(ProcessorsOf(page), "arm* x86 armv8");
  EXPECT_EQ(SettingsGet(keys::kProcessorType), u"arm");
}

// --- Fields --------------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgLoadTest, TheOutputFileGetsTheExtensionApk) {
  SettingsSet(keys::kTavDestination, u"out/My.Game.ipa");

  Open();

  EXPECT_EQ(EditOf(u"Output file:").text, u"out/My.Game.apk");
}

TEST_F(IpaSettingsDlgLoadTest, WithoutAnOutputFileTheMoviesNameStandsThere) {
  Open();

  EXPECT_EQ(EditOf(u"Output file:").text, u"Game.apk");
}

TEST_F(IpaSettingsDlgLoadTest, NamesAndVersionsComeFromTheDescriptor) {
  Open(
      "<id> com.game </id><name>My Game</name><versionNumber>1.2.3</versionNumber>"
      "<versionLabel>beta</versionLabel>");

  EXPECT_EQ(EditOf(u"App name:").text, u"My Game");
  EXPECT_TRUE(EditOf(u"App name:").enabled);
  EXPECT_EQ(EditOf(u"App ID:").text, u"com.game");
  EXPECT_EQ(EditOf(u"Version:").text, u"1.2.3");
  EXPECT_EQ(EditOf(u"Version label:").text, u"beta");
}

TEST_F(IpaSettingsDlgLoadTest, AnEmptyDescriptorLeavesTheFieldsEmptyButTheId) {
  Open("");

  EXPECT_EQ(EditOf(u"App name:").text, u"");
  EXPECT_TRUE(EditOf(u"App name:").enabled);
  EXPECT_EQ(EditOf(u"App ID:").text, u"Game");
  EXPECT_EQ(EditOf(u"Version:").text, u"");
  EXPECT_EQ(EditOf(u"Version label:").text, u"");
}

TEST_F(IpaSettingsDlgLoadTest, AnEmptyIdStaysEmpty) {
  Open("<id/>");

  EXPECT_EQ(EditOf(u"App ID:").text, u"");
}

TEST_F(IpaSettingsDlgLoadTest, ALocalisedNameDisablesItsField) {
  Open("<name><text xml:lang=\"en\">Game</text><text xml:lang=\"de\">Spiel</text></name>");

  EXPECT_FALSE(EditOf(u"App name:").enabled);
  EXPECT_EQ(EditOf(u"App name:").text, u"");
}

TEST_F(IpaSettingsDlgLoadTest, OnlyANameThatWasReadEnablesItsField) {
  Open("");
  EditOf(u"App name:").enabled = false;

  page.LoadFromDescriptor();
  EXPECT_FALSE(EditOf(u"App name:").enabled);

  LoadChildren("<name>My Game</name>");
  page.LoadFromDescriptor();
  EXPECT_TRUE(EditOf(u"App name:").enabled);
}

TEST_F(IpaSettingsDlgLoadTest, BoxesAreCheckedByTrueInAnyCaseAlone) {
  Open(
      "<initialWindow><fullScreen> TRUE </fullScreen><autoOrients>1</autoOrients>"
      "</initialWindow>");

  EXPECT_TRUE(BoxOf(u"Full screen").checked);
  EXPECT_FALSE(BoxOf(u"Auto orientation").checked);
}

TEST_F(IpaSettingsDlgLoadTest, AutoOrientationIsReadFromItsOwnElement) {
  Open(
      "<initialWindow><fullScreen>false</fullScreen><autoOrients>true</autoOrients>"
      "</initialWindow>");

  EXPECT_FALSE(BoxOf(u"Full screen").checked);
  EXPECT_TRUE(BoxOf(u"Auto orientation").checked);
}

TEST_F(IpaSettingsDlgLoadTest, MissingElementsClearTheBoxes) {
  BoxOf(u"Full screen").checked = true;
  BoxOf(u"Auto orientation").checked = true;

  Open();

  EXPECT_FALSE(BoxOf(u"Full screen").checked);
  EXPECT_FALSE(BoxOf(u"Auto orientation").checked);
}

struct ListCase {
  const char* element;
  const char16_t* row;
};

class AspectRatioTest : public GeneralPageTest<CIpaSettingsDlg>,
                        public ::testing::WithParamInterface<ListCase> {};

TEST_P(AspectRatioTest, ShowsTheDescriptorsAspectRatio) {
  Open(std::string("<initialWindow>") + GetParam().element + "</initialWindow>");

  EXPECT_EQ(ComboOf(u"Aspect ratio:").text, GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(
    IpaSettingsDlg, AspectRatioTest,
    ::testing::Values(ListCase{"", u"Auto"},
                      ListCase{"<aspectRatio> landscape </aspectRatio>", u"Landscape"},
                      ListCase{"<aspectRatio>portrait</aspectRatio>", u"Portrait"},
                      ListCase{"<aspectRatio>LANDSCAPE</aspectRatio>", u"Portrait"},
                      ListCase{"<aspectRatio>any</aspectRatio>", u"Portrait"},
                      ListCase{"<aspectRatio/>", u"Portrait"}));

class RenderModeTest : public GeneralPageTest<CIpaSettingsDlg>,
                       public ::testing::WithParamInterface<ListCase> {};

TEST_P(RenderModeTest, ShowsTheDescriptorsRenderMode) {
  Open(std::string("<initialWindow>") + GetParam().element + "</initialWindow>");

  EXPECT_EQ(ComboOf(u"Render mode:").text, GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(IpaSettingsDlg, RenderModeTest,
                         ::testing::Values(ListCase{"", u"CPU"},
                                           ListCase{"<renderMode> auto </renderMode>", u"Auto"},
                                           ListCase{"<renderMode>cpu</renderMode>", u"CPU"},
                                           ListCase{"<renderMode>gpu</renderMode>", u"GPU"},
                                           ListCase{"<renderMode>direct</renderMode>", u"Direct"},
                                           ListCase{"<renderMode>GPU</renderMode>", u"CPU"},
                                           ListCase{"<renderMode/>", u"CPU"}));

}  // namespace
}  // namespace qutav::test
