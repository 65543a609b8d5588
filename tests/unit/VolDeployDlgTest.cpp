#include "VolDeployTest.h"
#include "settings_ui/VolDeployDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

class VolDeployDlgTest : public VolDeployTest {};

// --- The page -----------------------------------------------------------------------------------

TEST_F(VolDeployDlgTest, ShowsItsFieldsInTheirOrderUnderItsTitle) {
  EXPECT_EQ(page.Title(), u"Deployment");
  EXPECT_EQ(page.EnglishTitle(), u"Deployment");
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);
  EXPECT_THAT(labels, ElementsAre(u"iPhone digital signature", u"Use an iPhone certificate (.p12)",
                                  u"More Info", u"Certificate:", u"Browse...", u"Password:",
                                  u"Remember password for this session", u"Provisioning profile:",
                                  u"Browse...", u"App ID:", u"iPhone deployment type",
                                  u"Quick publishing for device testing",
                                  u"Quick publishing for device debugging", u"Deployment - Ad hoc",
                                  u"Deployment - Apple App Store"));
}

TEST_F(VolDeployDlgTest, ThePasswordIsHiddenAndTheCombosTakeTypedTextUnsorted) {
  EXPECT_EQ(Password().style, EditStyle::kPassword);
  for (const char16_t* label : {u"Certificate:", u"Provisioning profile:"}) {
    EXPECT_EQ(Combo(label).style, ComboStyle::kDropDown);
    EXPECT_FALSE(Combo(label).sorted);
  }
}

TEST_F(VolDeployDlgTest, EverythingIsEnabledAlways) {
  page.Create();

  for (const auto& control : page.Controls()) EXPECT_TRUE(control->enabled);
}

TEST_F(VolDeployDlgTest, IsInitialisedAndUnchangedOnceItIsCreated) {
  EXPECT_FALSE(page.initialised);

  page.Create();

  EXPECT_TRUE(page.initialised);
  EXPECT_FALSE(page.changed);
}

TEST_F(VolDeployDlgTest, MoreInfoOpensTheHelp) {
  EXPECT_TRUE(PressButton(page, u"More Info"));

  EXPECT_THAT(frontEnd.links,
              ElementsAre(u"https://www.zenvoka.example/go/learn_TAV_for_iOS_quorl_en"));
}

// --- Loading ------------------------------------------------------------------------------------

struct DeployTypeCase {
  std::u16string stored;
  int value;
};

TEST_F(VolDeployDlgTest, TheStoredDeploymentTypeIsChecked) {
  const DeployTypeCase cases[] = {{u"test", 0},  {u"debug", 1}, {u"adhoc", 2}, {u"store", 3},
                                  {u"Store", 0}, {u"other", 0}, {u"", 0}};
  const std::u16string labels[] = {u"Quick publishing for device testing",
                                   u"Quick publishing for device debugging", u"Deployment - Ad hoc",
                                   u"Deployment - Apple App Store"};

  for (const auto& [stored, value] : cases) {
    SettingsSet(u"com.tav.moresh.ipaopt", stored);
    CVolDeployDlg loaded;
    loaded.Create();

    EXPECT_EQ(loaded.iosDeployType, value) << ToUtf8(stored);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(Find<RadioButton>(loaded, labels[i]).checked, i == value) << ToUtf8(stored);
    }
  }
}

TEST_F(VolDeployDlgTest, ARememberedPasswordIsLoaded) {
  SettingsSet(u"com.tav.moresh.iparempwd", u"true");
  SettingsSet(u"com.tav.moresh.ipacertpwd", u"secret");

  page.Create();

  EXPECT_TRUE(Remember().checked);
  EXPECT_EQ(Password().text, u"secret");
}

TEST_F(VolDeployDlgTest, APasswordThatIsNotRememberedIsNotLoaded) {
  SettingsSet(u"com.tav.moresh.iparempwd", u"false");
  SettingsSet(u"com.tav.moresh.ipacertpwd", u"secret");

  page.Create();

  EXPECT_FALSE(Remember().checked);
  EXPECT_EQ(Password().text, u"");
}

TEST_F(VolDeployDlgTest, RememberingWithoutAPasswordLeavesTheFieldEmpty) {
  SettingsSet(u"com.tav.moresh.iparempwd", u"true");

  page.Create();

  EXPECT_TRUE(Remember().checked);
  EXPECT_EQ(Password().text, u"");
}

TEST_F(VolDeployDlgTest, TheAppIdIsTheDescriptors) {
  page.Create();

  EXPECT_EQ(ApplicationId().text, u"com.old.game");
}

TEST_F(VolDeployDlgTest, ADescriptorWithoutIdLeavesTheAppIdEmpty) {
  LoadChildren("");

  page.Create();

  EXPECT_EQ(ApplicationId().text, u"");
}

// --- Both files ---------------------------------------------------------------------------------

class VolDeployFileTest : public VolDeployTest,
                          public ::testing::WithParamInterface<FileFieldCase> {
 protected:
  void PutRecent(const std::vector<std::u16string>& paths) {
    SaveRegistryFileList(GetParam().recentFiles, 10, paths);
  }
  ComboBox& Combo() { return VolDeployTest::Combo(GetParam().label); }
};

INSTANTIATE_TEST_SUITE_P(Both, VolDeployFileTest, ::testing::Values(kCertificateCase, kProfileCase),
                         [](const auto& field) { return ToUtf8(field.param.recentFiles); });

TEST_P(VolDeployFileTest, RecentFilesThatStillExistAreOffered) {
  PutRecent({PutFile(u"a"), u"C:\\gone\\b", u"", PutFile(u"c")});

  page.Create();

  EXPECT_THAT(Combo().Rows(), ElementsAre(u"C:\\k\\a", u"C:\\k\\c"));
}

TEST_P(VolDeployFileTest, ARecentFileThatARowBeginsWithIsNotOfferedAgain) {
  files.Put(u"C:/K/A");
  PutRecent({PutFile(u"ab"), PutFile(u"a"), u"C:\\K\\A"});

  page.Create();

  EXPECT_THAT(Combo().Rows(), ElementsAre(u"C:\\k\\ab"));
}

TEST_P(VolDeployFileTest, TheStoredFileIsSelectedAmongTheRecentOnes) {
  PutRecent({PutFile(u"a"), PutFile(u"b")});
  SettingsSet(GetParam().key, u"C:/k/b");

  page.Create();

  EXPECT_THAT(Combo().Rows(), ElementsAre(u"C:\\k\\a", u"C:\\k\\b"));
  EXPECT_EQ(Combo().GetCurSel(), 1);
  EXPECT_EQ(Combo().text, u"C:\\k\\b");
}

TEST_P(VolDeployFileTest, AStoredFileThatARowBeginsWithSelectsThatRow) {
  files.Put(u"C:/K/A");
  PutRecent({PutFile(u"x"), PutFile(u"ab")});
  SettingsSet(GetParam().key, u"C:/K/A");

  page.Create();

  EXPECT_EQ(Combo().GetCurSel(), 1);
  EXPECT_EQ(Combo().text, u"C:\\k\\ab");
}

TEST_P(VolDeployFileTest, AStoredFileThatNoRecentListHoldsIsInsertedAtTheTop) {
  PutRecent({PutFile(u"a"), PutFile(u"b")});
  PutFile(u"new");
  SettingsSet(GetParam().key, u"C:/k/new");

  page.Create();

  EXPECT_THAT(Combo().Rows(), ElementsAre(u"C:\\k\\new", u"C:\\k\\a", u"C:\\k\\b"));
  EXPECT_EQ(Combo().GetCurSel(), 0);
  EXPECT_EQ(Combo().text, u"C:\\k\\new");
}

TEST_P(VolDeployFileTest, AStoredFileThatHasGoneFallsBackToTheLastChoiceAndStaysStored) {
  PutRecent({PutFile(u"a"), PutFile(u"b")});
  SettingsSet(GetParam().key, u"C:/gone/x");
  SetRegistryString(GetParam().lastChoice, u"C:/k/b");

  page.Create();

  EXPECT_EQ(Combo().text, u"C:\\k\\b");
  EXPECT_EQ(SettingsGet(GetParam().key), u"C:/gone/x");
}

TEST_P(VolDeployFileTest, WithoutAStoredFileTheLastChoiceIsSelected) {
  PutRecent({PutFile(u"a"), PutFile(u"b")});
  SetRegistryString(GetParam().lastChoice, u"C:/k/b");

  page.Create();

  EXPECT_EQ(Combo().GetCurSel(), 1);
}

TEST_P(VolDeployFileTest, ALastChoiceThatIsNotOfferedSelectsTheFirstRow) {
  PutRecent({PutFile(u"a"), PutFile(u"b")});
  PutFile(u"c");
  SetRegistryString(GetParam().lastChoice, u"C:/k/c");

  page.Create();

  EXPECT_THAT(Combo().Rows(), ElementsAre(u"C:\\k\\a", u"C:\\k\\b"));
  EXPECT_EQ(Combo().GetCurSel(), 0);
}

TEST_P(VolDeployFileTest, WithoutAnyChoiceTheFirstRowIsSelected) {
  PutRecent({PutFile(u"a"), PutFile(u"b")});

  page.Create();

  EXPECT_EQ(Combo().GetCurSel(), 0);
  EXPECT_EQ(Combo().text, u"C:\\k\\a");
}

TEST_P(VolDeployFileTest, WithoutRowsTheComboIsEmptyAndAsWideAsItWas) {
  page.Create();

  EXPECT_EQ(Combo().text, u"");
  EXPECT_EQ(Combo().GetCurSel(), -1);
  EXPECT_EQ(Combo().DroppedWidth(), 0);
}

TEST_P(VolDeployFileTest, TheOpenedListIsAsWideAsItsWidestRowAndADigit) {
  PutRecent({PutFile(u"longer"), PutFile(u"a")});

  page.Create();

  EXPECT_EQ(Combo().DroppedWidth(), 11 * 7 + 7);
}

// --- Browsing for a certificate -----------------------------------------------------------------

TEST_F(VolDeployDlgTest, BrowsingForACertificateOffersP12Files) {
  page.Create();

  EXPECT_TRUE(PressButton(page, u"Browse..."));

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.fileDialogs[0].kind, FileDialogKind::kOpen);
  EXPECT_EQ(frontEnd.fileDialogs[0].owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.fileDialogs[0].filter, u" (*.p12)|*.p12||");
}

TEST_F(VolDeployDlgTest, AChosenCertificateIsShownAndAddedButNotSelected) {
  page.Create();
  frontEnd.chosenFile = u"C:\\k\\my.p12";

  PressButton(page, u"Browse...");

  EXPECT_EQ(Combo(u"Certificate:").text, u"C:\\k\\my.p12");
  EXPECT_THAT(Combo(u"Certificate:").Rows(), ElementsAre(u"C:\\k\\my.p12"));
  EXPECT_EQ(Combo(u"Certificate:").GetCurSel(), -1);
  EXPECT_EQ(Combo(u"Certificate:").DroppedWidth(), 11 * 7 + 7);
}

TEST_F(VolDeployDlgTest, AChosenCertificateThatIsListedIsOnlyShown) {
  SaveRegistryFileList(u"IpaCertPath", 10, {PutFile(u"a.p12"), PutFile(u"b.p12")});
  page.Create();
  frontEnd.chosenFile = u"C:\\K\\B.p12";

  PressButton(page, u"Browse...");

  EXPECT_EQ(Combo(u"Certificate:").text, u"C:\\K\\B.p12");
  EXPECT_THAT(Combo(u"Certificate:").Rows(), ElementsAre(u"C:\\k\\a.p12", u"C:\\k\\b.p12"));
}

TEST_F(VolDeployDlgTest, CancelledBrowsingChangesNothing) {
  page.Create();
  Combo(u"Certificate:").Type(u"typed");
  Combo(u"Provisioning profile:").Type(u"typed too");

  PressButton(page, u"Browse...");
  PressButton(page, u"Browse...#2");

  EXPECT_EQ(Combo(u"Certificate:").text, u"typed");
  EXPECT_EQ(Combo(u"Provisioning profile:").text, u"typed too");
  EXPECT_THAT(Combo(u"Provisioning profile:").Rows(), IsEmpty());
}

// --- Browsing for a profile ---------------------------------------------------------------------

TEST_F(VolDeployDlgTest, BrowsingForAProfileOffersProfiles) {
  page.Create();

  EXPECT_TRUE(PressButton(page, u"Browse...#2"));

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.fileDialogs[0].kind, FileDialogKind::kOpen);
  EXPECT_EQ(frontEnd.fileDialogs[0].owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.fileDialogs[0].filter, u" (*.mobileprovision)|*.mobileprovision||");
}

TEST_F(VolDeployDlgTest, AChosenProfileIsSelectedAndItsIdentifierApplied) {
  SaveRegistryFileList(u"MobileProvisionFiles", 10, {PutFile(u"a")});
  page.Create();
  frontEnd.chosenFile = PutProfile(u"new.mobileprovision", "ABCDE12345.com.new.app");

  PressButton(page, u"Browse...#2");

  EXPECT_EQ(Combo(u"Provisioning profile:").GetCurSel(), 1);
  EXPECT_EQ(Combo(u"Provisioning profile:").text, u"C:\\k\\new.mobileprovision");
  EXPECT_EQ(Combo(u"Provisioning profile:").DroppedWidth(), 24 * 7 + 7);
  EXPECT_EQ(ApplicationId().text, u"com.new.app");
}

TEST_F(VolDeployDlgTest, AChosenProfileThatIsListedChangesNeitherSelectionNorAppId) {
  SaveRegistryFileList(
      u"MobileProvisionFiles", 10,
      {PutProfile(u"a", "ABCDE12345.com.a.app"), PutProfile(u"b", "ABCDE12345.com.b.app")});
  page.Create();
  frontEnd.chosenFile = u"C:\\k\\b";

  PressButton(page, u"Browse...#2");

  EXPECT_EQ(Combo(u"Provisioning profile:").text, u"C:\\k\\b");
  EXPECT_EQ(Combo(u"Provisioning profile:").GetCurSel(), 0);
  EXPECT_EQ(ApplicationId().text, u"com.old.game");
}

// --- The profile and the App ID -----------------------------------------------------------------

class VolDeployProfileTest : public VolDeployTest {
 protected:
  // The App ID after a profile for this identifier was chosen from the list.
  std::u16string AppIdAfter(const std::string& identifier, const std::u16string& before) {
    SaveRegistryFileList(u"MobileProvisionFiles", 10, {PutProfile(u"a", identifier)});
    page.Create();
    ApplicationId().Type(before);
    Combo(u"Provisioning profile:").Choose(0);
    return ApplicationId().text;
  }
};

TEST_F(VolDeployProfileTest, AProfileForEverythingLeavesTheAppIdAlone) {
  EXPECT_EQ(AppIdAfter("ABCDE12345.*", u"com.other.game"), u"com.other.game");
}

TEST_F(VolDeployProfileTest, AProfileForOneAppIdReplacesWhateverWasTyped) {
  EXPECT_EQ(AppIdAfter("ABCDE12345.com.example.game", u"what ever"), u"com.example.game");
}

TEST_F(VolDeployProfileTest, AProfileForManyRewritesTheBeginning) {
  EXPECT_EQ(AppIdAfter("ABCDE12345.com.example.*", u"com.other.game"), u"com.example.other.game");
}

TEST_F(VolDeployProfileTest, AnIdentifierOfElevenCharactersDoesNotCount) {
  EXPECT_EQ(AppIdAfter("ABCDE12345.", u"com.other.game"), u"com.other.game");
}

TEST_F(VolDeployProfileTest, AProfileWithoutWhiteSpaceBehindItsKeyIsNotRead) {
  files.Put(u"C:/k/a",
            "<plist><dict><key>application-identifier</key>"
            "<string>ABCDE12345.com.example.game</string>\n</dict></plist>");
  SaveRegistryFileList(u"MobileProvisionFiles", 10, {u"C:\\k\\a"});
  page.Create();

  Combo(u"Provisioning profile:").Choose(0);

  EXPECT_EQ(ApplicationId().text, u"com.old.game");
}

TEST_F(VolDeployProfileTest, AProfileThatDoesNotParseChangesNothing) {
  CaptureStdout();

  EXPECT_EQ(AppIdAfter("ABCDE12345.com.example.game</string><oops>", u"com.other"), u"com.other");

  EXPECT_NE(GetCapturedStdout(), "");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(VolDeployProfileTest, ThePathOfTheSelectedRowCountsNotTheShownText) {
  AppIdAfter("ABCDE12345.com.selected", u"");
  Combo(u"Provisioning profile:").SetText(PutProfile(u"typed", "ABCDE12345.com.typed"));
  EXPECT_EQ(ApplicationId().text, u"com.selected");

  page.ApplyProvisioningProfile();

  EXPECT_EQ(ApplicationId().text, u"com.selected");
}

TEST_F(VolDeployProfileTest, NoCopyOfTheListIsLeftBehind) {
  AppIdAfter("ABCDE12345.com.example.game", u"");

  EXPECT_FALSE(files.HasFile(u"C:/m/temp_xml_provision_file.xml"));
}

TEST_F(VolDeployProfileTest, AProfileWithoutAListIsAnErrorThatThePageDoesNotHandle) {
  PutFile(u"a");
  SaveRegistryFileList(u"MobileProvisionFiles", 10, {u"C:\\k\\a"});
  page.Create();

  try {
    Combo(u"Provisioning profile:").Choose(0);
    FAIL() << "nothing was thrown";
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "invalid string position");
  }
}

TEST_F(VolDeployProfileTest, TheUserLearnsOfAProfileWithoutAListAndThePageGoesOn) {
  page.Create();
  frontEnd.chosenFile = PutFile(u"a");

  CDialog::Dispatch([this] { PressButton(page, u"Browse...#2"); });

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Unknown error.\n\ninvalid string position"));
  EXPECT_EQ(Combo(u"Provisioning profile:").text, u"C:\\k\\a");
  EXPECT_EQ(ApplicationId().text, u"com.old.game");
}

// --- Deployment types ---------------------------------------------------------------------------

TEST_F(VolDeployDlgTest, ADeploymentTypeIsStoredAtOnce) {
  page.Create();

  Find<RadioButton>(page, u"Deployment - Ad hoc").Click();

  EXPECT_EQ(page.iosDeployType, 2);
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaopt"), u"adhoc");
  EXPECT_TRUE(page.changed);
}

TEST_F(VolDeployDlgTest, EveryDeploymentTypeHasItsText) {
  page.Create();
  const auto stored = [this](const std::u16string& label) {
    Find<RadioButton>(page, label).Click();
    return SettingsGet(u"com.tav.moresh.ipaopt");
  };

  EXPECT_EQ(stored(u"Quick publishing for device debugging"), u"debug");
  EXPECT_EQ(stored(u"Deployment - Ad hoc"), u"adhoc");
  EXPECT_EQ(stored(u"Deployment - Apple App Store"), u"store");
  EXPECT_EQ(stored(u"Quick publishing for device testing"), u"test");
}

}  // namespace
}  // namespace qutav::test
