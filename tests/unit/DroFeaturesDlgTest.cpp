#include "DescriptorTest.h"
#include "settings_ui/DroFeaturesDlg.h"
#include "win/DocumentPaths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char16_t kEnglishFile[] = u"C:/host/en_US/configuration/Android/Features.xml";
constexpr char16_t kNothingSelected[] = u"Select a row above to see its description";
constexpr char16_t kFromDescriptor[] = u"This permission was found in the App Descriptor file.";

std::string FeatureXml(const std::string& name, const std::string& description) {
  return "<feature><featureName>" + name + "</featureName><description>" + description +
         "</description></feature>";
}

std::string Fragment(const std::string& inside) {
  return "<android><manifestAdditions><![CDATA[<manifest>" + inside +
         "</manifest>]]></manifestAdditions></android>";
}

std::string Permission(const std::string& name) {
  return "<uses-permission android:name=\"android.permission." + name + "\"/>";
}

class DroFeaturesDlgTest : public DescriptorTest {
 protected:
  DroFeaturesDlgTest() {
    DocumentPaths.LaunchPath = u"C:/host/";
    PutFeatures(FeatureXml("INTERNET", "Opens sockets.") + FeatureXml("CAMERA", "Takes pictures.") +
                FeatureXml("NFC", "Talks to tags."));
    LoadChildren("");
  }

  void PutFeatures(const std::string& features) {
    files.Put(kEnglishFile, "<androidFeatures>" + features + "</androidFeatures>");
  }
  CheckList& List() const { return Find<CheckList>(page, u"Permission Name"); }
  CheckBox& Manual() const {
    return Find<CheckBox>(page,
                          u"Manually manage permissions and manifest additions in the application "
                          u"descriptor file");
  }
  std::u16string Description() const { return Find<Edit>(page, u"Description:").text; }
  std::vector<std::u16string> RowTexts() const {
    std::vector<std::u16string> texts;
    for (const CheckList::Row& row : List().Rows()) texts.push_back(row.text);
    return texts;
  }

  CDroFeaturesDlg page;
};

// Reveals what the platform is told.
class RevealingPage : public CDroFeaturesDlg {
 public:
  using CDroFeaturesDlg::OnInitDialog;
};

TEST_F(DroFeaturesDlgTest, ShowsItsControlsInOrderUnderItsTitle) {
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);

  EXPECT_EQ(page.ClassName(), u"CDroFeaturesDlg");
  EXPECT_EQ(page.EnglishTitle(), u"Permissions");
  EXPECT_EQ(page.Title(), u"Permissions");
  EXPECT_THAT(
      labels,
      ElementsAre(u"Manually manage permissions and manifest additions in the application "
                  u"descriptor file",
                  u"Select the permissions below that will be required in your application:",
                  u"Permission Name", u"Description:"));
  EXPECT_EQ(List().caption, u"Permission Name");
  EXPECT_EQ(List().columnWidth, CheckList::kWholeWidth);
  EXPECT_TRUE(List().fullRowSelect);
  EXPECT_EQ(Find<Edit>(page, u"Description:").style, EditStyle::kReadOnlyLines);
}

TEST_F(DroFeaturesDlgTest, ShowsARowForEveryFeatureOfTheFile) {
  page.Create();

  EXPECT_THAT(RowTexts(), ElementsAre(u"INTERNET", u"CAMERA", u"NFC"));
  EXPECT_THAT(FeatureNames, ElementsAre(u"INTERNET", u"CAMERA", u"NFC"));
  EXPECT_THAT(FeatureDescriptions,
              ElementsAre(u"Opens sockets.", u"Takes pictures.", u"Talks to tags."));
  EXPECT_THAT(List().CheckedRows(), IsEmpty());
  EXPECT_EQ(Description(), kNothingSelected);
  EXPECT_TRUE(page.initialised);
  EXPECT_TRUE(RevealingPage().OnInitDialog());
}

TEST_F(DroFeaturesDlgTest, ReadsTheFileBelowTheLaunchPathInTheHostsLanguage) {
  host.languageCode = u"de_DE";
  files.Put(u"C:/host/de_DE/configuration/Android/Features.xml",
            "<androidFeatures>" + FeatureXml("NFC", "Spricht mit Chips.") + "</androidFeatures>");

  page.Create();

  EXPECT_THAT(FeatureDescriptions, ElementsAre(u"Spricht mit Chips."));
}

TEST_F(DroFeaturesDlgTest, ALanguageFolderWithoutTheFileLeavesThePageEmptyForThatLanguage) {
  LoadChildren(Fragment(Permission("INTERNET")));
  host.languageCode = u"fr_FR";

  page.Create();

  EXPECT_THAT(RowTexts(), IsEmpty());
  EXPECT_FALSE(page.initialised);
  EXPECT_EQ(page.SavePermissions(), 0);
  EXPECT_THAT(CurrentDescriptor.GetManifestPermissions(), ElementsAre(u"INTERNET"));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DroFeaturesDlgTest, AHostWithoutALanguageHasNoFolderOfItsLanguage) {
  host.languageCode = u"0";

  page.Create();

  EXPECT_FALSE(page.initialised);
}

TEST_F(DroFeaturesDlgTest, AMalformedFileIsLikeNone) {
  files.Put(kEnglishFile, "<androidFeatures><feature>");
  ::testing::internal::CaptureStdout();

  page.Create();

  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "Unexpected Exception \n");
  EXPECT_FALSE(page.initialised);
  EXPECT_FALSE(page.changed);
  EXPECT_THAT(RowTexts(), IsEmpty());
  EXPECT_EQ(Description(), kNothingSelected);
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DroFeaturesDlgTest, AMissingFileIsToldOnTheStandardOutputOnly) {
  files.Delete(kEnglishFile);
  EXPECT_EQ(page.InitFeatureParser(), 0);
  ::testing::internal::CaptureStdout();

  EXPECT_FALSE(page.ReadFeatures());

  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "Unexpected Exception \n");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DroFeaturesDlgTest, AFileThatIsNoListOfFeaturesLeavesThePageEmpty) {
  files.Put(kEnglishFile, "<features/>");

  EXPECT_FALSE(RevealingPage().OnInitDialog());
  page.Create();

  EXPECT_FALSE(page.initialised);
  EXPECT_EQ(page.SavePermissions(), 0);
}

TEST_F(DroFeaturesDlgTest, AReadingForgetsTheOneBefore) {
  page.Create();
  files.Delete(kEnglishFile);

  EXPECT_EQ(page.InitFeatureParser(), 0);
  EXPECT_FALSE(page.ReadFeatures());

  EXPECT_THAT(FeatureNames, IsEmpty());
  EXPECT_THAT(FeatureDescriptions, IsEmpty());
}

TEST_F(DroFeaturesDlgTest, ListsSurviveTheSheetAndAreRefilledAtTheNextOpening) {
  page.Create();
  page.Destroy();
  EXPECT_THAT(FeatureNames, ElementsAre(u"INTERNET", u"CAMERA", u"NFC"));
  PutFeatures(FeatureXml("NFC", "d"));

  CDroFeaturesDlg next;
  next.Create();

  EXPECT_THAT(FeatureNames, ElementsAre(u"NFC"));
  EXPECT_EQ(Find<CheckList>(next, u"Permission Name").GetCount(), 1);
}

TEST_F(DroFeaturesDlgTest, PermissionsOfTheManifestAreChecked) {
  LoadChildren(Fragment(Permission("NFC") + Permission("INTERNET")));

  page.Create();

  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"INTERNET", u"NFC"));
  EXPECT_THAT(RowTexts(), ElementsAre(u"INTERNET", u"CAMERA", u"NFC"));
}

TEST_F(DroFeaturesDlgTest, NamesAreComparedExactly) {
  LoadChildren(Fragment(Permission("Camera")));

  page.Create();

  EXPECT_THAT(RowTexts(), ElementsAre(u"INTERNET", u"CAMERA", u"NFC", u"Camera"));
  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"Camera"));
}

TEST_F(DroFeaturesDlgTest, ANameThatTheFileHoldsTwiceIsCheckedTwice) {
  PutFeatures(FeatureXml("NFC", "1") + FeatureXml("CAMERA", "2") + FeatureXml("NFC", "3"));
  LoadChildren(Fragment(Permission("NFC")));

  page.Create();

  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"NFC", u"NFC"));
  EXPECT_EQ(page.SavePermissions(), 1);
  EXPECT_THAT(CurrentDescriptor.GetManifestPermissions(), ElementsAre(u"NFC", u"NFC"));
}

TEST_F(DroFeaturesDlgTest, AnUnknownPermissionStandsAtTheEndCheckedAndSurvivesSaving) {
  LoadChildren(Fragment(Permission("FLY") + Permission("CAMERA")));

  page.Create();
  List().ChooseByUser(3);

  EXPECT_THAT(RowTexts(), ElementsAre(u"INTERNET", u"CAMERA", u"NFC", u"FLY"));
  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"CAMERA", u"FLY"));
  EXPECT_EQ(Description(), kFromDescriptor);
  EXPECT_EQ(page.SavePermissions(), 1);
  EXPECT_THAT(CurrentDescriptor.GetManifestPermissions(), ElementsAre(u"CAMERA", u"FLY"));
}

TEST_F(DroFeaturesDlgTest, AnUnknownPermissionThatTheManifestHasTwiceIsOneRow) {
  LoadChildren(Fragment(Permission("FLY") + Permission("FLY")));

  page.Create();

  EXPECT_THAT(RowTexts(), ElementsAre(u"INTERNET", u"CAMERA", u"NFC", u"FLY"));
  EXPECT_THAT(FeatureNames, ElementsAre(u"INTERNET", u"CAMERA", u"NFC", u"FLY"));
}

TEST_F(DroFeaturesDlgTest, APermissionTooShortForItsPrefixRaisesAnExceptionOutOfThePage) {
  LoadChildren(Fragment("<uses-permission android:name=\"short\"/>"));

  EXPECT_THROW(page.Create(), std::out_of_range);

  EXPECT_FALSE(page.initialised);
  EXPECT_EQ(page.SavePermissions(), 0);
}

TEST_F(DroFeaturesDlgTest, ASelectedRowShowsItsDescription) {
  page.Create();

  List().ChooseByUser(1);
  EXPECT_EQ(Description(), u"Takes pictures.");

  List().ChooseByUser(2);
  EXPECT_EQ(Description(), u"Talks to tags.");
}

TEST_F(DroFeaturesDlgTest, TheFirstOfSeveralSelectedRowsShowsItsDescription) {
  page.Create();

  List().SetSelected(2, true);
  List().SetSelected(1, true);

  EXPECT_EQ(Description(), u"Takes pictures.");
}

TEST_F(DroFeaturesDlgTest, WithoutASelectionTheInvitationComesBack) {
  page.Create();
  List().ChooseByUser(1);

  List().SetSelected(1, false);

  EXPECT_EQ(Description(), kNothingSelected);
}

TEST_F(DroFeaturesDlgTest, ARowThatIsCheckedWithoutBeingSelectedShowsNoDescription) {
  page.Create();

  List().ToggleByUser(1);

  EXPECT_EQ(Description(), kNothingSelected);
  EXPECT_TRUE(page.changed);
}

TEST_F(DroFeaturesDlgTest, AFeatureWithoutADescriptionShowsTheOneBeforeIt) {
  PutFeatures(FeatureXml("INTERNET", "Opens sockets.") +
              "<feature><featureName>CAMERA</featureName></feature>");
  page.Create();

  List().ChooseByUser(1);

  EXPECT_EQ(Description(), u"Opens sockets.");
}

TEST_F(DroFeaturesDlgTest, APageThatCheckedNothingReportsNoChangeUntilItIsTouched) {
  page.Create();
  EXPECT_FALSE(page.changed);

  List().ChooseByUser(0);

  EXPECT_TRUE(page.changed);
}

TEST_F(DroFeaturesDlgTest, APageThatCheckedARowAtLoadReportsAChange) {
  LoadChildren(Fragment(Permission("NFC")));

  page.Create();

  EXPECT_TRUE(page.changed);
}

TEST_F(DroFeaturesDlgTest, AClickOnARowThatIsSelectedAlreadyIsAChangeToo) {
  page.Create();
  List().ChooseByUser(0);
  page.changed = false;

  List().ChooseByUser(0);

  EXPECT_TRUE(page.changed);
}

TEST_F(DroFeaturesDlgTest, WithoutTheMarkTheListIsFree) {
  page.Create();

  EXPECT_TRUE(List().enabled);
  EXPECT_FALSE(Manual().checked);
}

TEST_F(DroFeaturesDlgTest, TheMarkOfManualModeIsReadInAnyCase) {
  SettingsSet(keys::kIgnoreManifestAdditions, u"True");

  page.Create();

  EXPECT_FALSE(List().enabled);
  EXPECT_TRUE(Manual().checked);
  EXPECT_FALSE(page.changed);
}

TEST_F(DroFeaturesDlgTest, CheckingTheManualBoxFreezesTheListAtOnce) {
  LoadChildren(Fragment(Permission("NFC")));
  page.Create();
  page.changed = false;

  Manual().Click();

  EXPECT_EQ(SettingsGet(keys::kIgnoreManifestAdditions), u"true");
  EXPECT_FALSE(List().enabled);
  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"NFC"));
  EXPECT_TRUE(page.changed);
}

TEST_F(DroFeaturesDlgTest, ClearingTheManualBoxFreesTheListAtOnce) {
  SettingsSet(keys::kIgnoreManifestAdditions, u"true");
  page.Create();

  Manual().Click();

  EXPECT_EQ(SettingsGet(keys::kIgnoreManifestAdditions), u"false");
  EXPECT_TRUE(List().enabled);
  EXPECT_TRUE(page.changed);
}

TEST_F(DroFeaturesDlgTest, WithTheManualBoxCheckedAChangeByHandSurvivesSaving) {
  const std::string byHand = Fragment("<uses-feature android:name=\"x\"/>" + Permission("NFC"));
  LoadChildren(byHand);
  SettingsSet(keys::kIgnoreManifestAdditions, u"TRUE");
  page.Create();

  EXPECT_EQ(page.SavePermissions(), 1);

  EXPECT_EQ(Children(), byHand);
}

TEST_F(DroFeaturesDlgTest, ClearingTheManualBoxRewritesTheAdditionsFromTheCheckedRows) {
  LoadChildren(Fragment("<uses-feature android:name=\"x\"/>" + Permission("NFC")));
  SettingsSet(keys::kIgnoreManifestAdditions, u"true");
  page.Create();
  Manual().Click();
  List().ToggleByUser(0);

  EXPECT_EQ(page.SavePermissions(), 1);

  EXPECT_EQ(Children(), Fragment(Permission("INTERNET") + Permission("NFC")));
}

TEST_F(DroFeaturesDlgTest, SavesTheCheckedRowsInTheirOrder) {
  page.Create();
  List().ToggleByUser(2);
  List().ToggleByUser(0);

  EXPECT_EQ(page.SavePermissions(), 1);

  EXPECT_THAT(CurrentDescriptor.GetManifestPermissions(), ElementsAre(u"INTERNET", u"NFC"));
}

TEST_F(DroFeaturesDlgTest, WithoutACheckedRowAnEmptyListIsSaved) {
  LoadChildren(Fragment(Permission("NFC")));
  page.Create();
  List().ToggleByUser(2);

  EXPECT_EQ(page.SavePermissions(), 1);

  EXPECT_EQ(Children(), Fragment(""));
}

TEST_F(DroFeaturesDlgTest, APageThatWasNeverShownSavesNothing) {
  LoadChildren(Fragment(Permission("NFC")));

  EXPECT_EQ(page.SavePermissions(), 0);

  EXPECT_THAT(CurrentDescriptor.GetManifestPermissions(), ElementsAre(u"NFC"));
}

TEST_F(DroFeaturesDlgTest, OnlyTheManualModeIsStoredBeforeSaving) {
  page.Create();
  List().ToggleByUser(0);

  EXPECT_THAT(CurrentDescriptor.GetManifestPermissions(), IsEmpty());
  EXPECT_EQ(Children(), "");
}

TEST_F(DroFeaturesDlgTest, ShowsItsTextsInTheInterfaceLanguage) {
  language.SetThreadInterfaceLanguage(1062);
  LoadChildren(Fragment(Permission("FLY")));
  CDroFeaturesDlg translated;

  translated.Create();

  EXPECT_EQ(translated.Title(), u"[su] $_Permissions_#");
  EXPECT_EQ(Find<CheckList>(translated, u"Permission Name").caption, u"[su] $_Permission Name_#");
  EXPECT_EQ(Find<Edit>(translated, u"Description:").text,
            u"[su] $_Select a row above to see its description_#");
  EXPECT_EQ(FeatureDescriptions.back(),
            u"[su] $_This permission was found in the App Descriptor file._#");
}

}  // namespace
}  // namespace qutav::test
