// What the Android deployment page shows when it opens, and its certificate buttons.
#include "DigitalSigTest.h"
#include "settings_ui/DigitalSigDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DigitalSigDlgTest : public DigitalSigTest {
 protected:
  void AddInterface(std::uint32_t index, const std::u16string& name) {
    constexpr std::uint32_t kEthernet = 6;
    constexpr std::uint32_t kAddress = 10 | 2 << 24;  // 10.0.0.2
    networkTables.addresses.rows.push_back({index, kAddress});
    networkTables.adapters.rows.push_back({index, kEthernet, name});
  }
};

TEST_F(DigitalSigDlgTest, ShowsItsControlsInOrderUnderItsTitle) {
  EXPECT_EQ(page.Title(), u"Deployment");
  EXPECT_EQ(page.EnglishTitle(), u"Deployment");
  EXPECT_EQ(page.ClassName(), u"CDigitalSigDlg");
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);
  EXPECT_THAT(labels, ElementsAre(u"Certificate:", u"Browse...", u"Create...", u"Password:",
                                  u"Remember password for this session", u"Android deployment type",
                                  u"Device release", u"Emulator release", u"Debug",
                                  u"Network interface for remote debugging:", u"TAV runtime",
                                  u"Embed TAV runtime with application", u"Get TAV runtime from:",
                                  u"Get TAV runtime from:", u"After publishing",
                                  u"Install application on the connected Android device",
                                  u"Launch application on the connected Android device",
                                  u"Device Serial Number", u"Refresh"));
}

TEST_F(DigitalSigDlgTest, ControlsAreOfTheirKinds) {
  EXPECT_EQ(Certificate().style, ComboStyle::kDropDown);
  EXPECT_TRUE(Certificate().sorted);
  EXPECT_EQ(Password().style, EditStyle::kPassword);
  EXPECT_EQ(Network().style, ComboStyle::kDropList);
  EXPECT_TRUE(Network().sorted);
  EXPECT_EQ(Market().style, ComboStyle::kDropList);
  EXPECT_FALSE(Market().sorted);
  EXPECT_EQ(Devices().columnWidth, 160);
}

TEST_F(DigitalSigDlgTest, MembersHaveTheirInitialValues) {
  EXPECT_EQ(page.deployType, 0);
  EXPECT_EQ(page.runtimeChoice, 1);
  EXPECT_EQ(page.afterPublish, 0);
  EXPECT_FALSE(page.initialised);
  EXPECT_FALSE(page.changed);
  EXPECT_FALSE(page.listReady);
}

TEST_F(DigitalSigDlgTest, LoadingMarksThePageInitialisedAndUnchanged) {
  page.Create();

  EXPECT_TRUE(page.initialised);
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigDlgTest, SigningControlsAreEnabled) {
  page.Create();

  EXPECT_TRUE(Certificate().enabled);
  EXPECT_TRUE(Password().enabled);
  EXPECT_TRUE(Remember().enabled);
  EXPECT_TRUE(Find<Button>(page, u"Browse...").enabled);
  EXPECT_TRUE(Find<Button>(page, u"Create...").enabled);
}

// --- Certificate and password -------------------------------------------------------------------

TEST_F(DigitalSigDlgTest, RecentCertificatesAreSorted) {
  PutCertificates({u"C:\\k\\b.p12", u"C:\\k\\a.p12"});

  page.Create();

  EXPECT_THAT(Certificate().Rows(), ElementsAre(u"C:\\k\\a.p12", u"C:\\k\\b.p12"));
}

TEST_F(DigitalSigDlgTest, ADeletedCertificateDisappearsButStaysOnTheRegistryList) {
  PutCertificates({u"C:\\k\\a.p12", u"C:\\k\\b.p12"});
  files.Delete(u"C:\\k\\a.p12");

  page.Create();
  page.SaveToSettings(false);

  EXPECT_THAT(Certificate().Rows(), ElementsAre(u"C:\\k\\b.p12"));
  EXPECT_THAT(registry.keys[kCertificateList],
              ElementsAre(::testing::Pair(u"file1", u"C:\\k\\a.p12"),
                          ::testing::Pair(u"file2", u"C:\\k\\b.p12")));
}

TEST_F(DigitalSigDlgTest, APathThatAnotherEntryContinuesIsNoEntryOfItsOwn) {
  PutCertificates({u"C:\\k\\a.p12.old", u"C:\\k\\a.p12"});
  frontEnd.chosenFile = u"C:\\K\\a.p12";
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Browse..."));

  EXPECT_THAT(Certificate().Rows(), ElementsAre(u"C:\\k\\a.p12.old"));
  EXPECT_EQ(Certificate().text, u"C:\\K\\a.p12");
}

TEST_F(DigitalSigDlgTest, TheLastCertificateIsSelected) {
  PutCertificates({u"C:\\k\\a.p12", u"C:\\k\\b.p12"});
  SetRegistryValue(u"Last Selected Cert Android", u"C:/k/b.p12");

  page.Create();

  EXPECT_EQ(Certificate().GetCurSel(), 1);
  EXPECT_EQ(Certificate().text, u"C:\\k\\b.p12");
}

TEST_F(DigitalSigDlgTest, ALastCertificateThatIsNotListedSelectsTheFirst) {
  PutCertificates({u"C:\\k\\a.p12", u"C:\\k\\b.p12"});
  SetRegistryValue(u"Last Selected Cert Android", u"C:/k/c.p12");

  page.Create();

  EXPECT_EQ(Certificate().text, u"C:\\k\\a.p12");
}

TEST_F(DigitalSigDlgTest, NoLastCertificateSelectsTheFirst) {
  PutCertificates({u"C:\\k\\b.p12", u"C:\\k\\a.p12"});

  page.Create();

  EXPECT_EQ(Certificate().text, u"C:\\k\\a.p12");
}

TEST_F(DigitalSigDlgTest, TheOpenedListIsAsWideAsItsWidestEntryAndADigit) {
  PutCertificates({u"C:\\k\\a.p12", u"C:\\k\\bb.p12"});

  page.Create();

  EXPECT_EQ(Certificate().DroppedWidth(), 11 * 7 + 7);
}

TEST_F(DigitalSigDlgTest, ARememberedPasswordIsShown) {
  SettingsSet(keys::kRememberPassword, u"true");
  SettingsSet(keys::kCertificatePassword, u"secret");

  page.Create();

  EXPECT_TRUE(Remember().checked);
  EXPECT_EQ(Password().text, u"secret");
}

TEST_F(DigitalSigDlgTest, APasswordWithoutTheMarkIsNotShown) {
  SettingsSet(keys::kRememberPassword, u"TRUE");
  SettingsSet(keys::kCertificatePassword, u"secret");

  page.Create();

  EXPECT_FALSE(Remember().checked);
  EXPECT_EQ(Password().text, u"");
}

TEST_F(DigitalSigDlgTest, BrowseAsksForAKeystore) {
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Browse..."));

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  const FileDialogRequest& request = frontEnd.fileDialogs.front();
  EXPECT_EQ(request.kind, FileDialogKind::kOpen);
  EXPECT_EQ(request.filter,
            u"P12 File (*.p12)|*.p12|PFX File (*.pfx)|*.pfx|JKS File (*.jks)|*.jks||");
  EXPECT_EQ(request.title, u"");
  EXPECT_EQ(request.owner, frontEnd.focus);
}

TEST_F(DigitalSigDlgTest, ABrowsedCertificateIsShownAndListed) {
  frontEnd.chosenFile = u"C:\\keys\\chosen.p12";
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Browse..."));

  EXPECT_EQ(Certificate().text, u"C:\\keys\\chosen.p12");
  EXPECT_THAT(Certificate().Rows(), ElementsAre(u"C:\\keys\\chosen.p12"));
  EXPECT_EQ(Certificate().DroppedWidth(), 18 * 7 + 7);
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigDlgTest, ACancelledBrowseChangesNothing) {
  PutCertificates({u"C:\\k\\a.p12"});
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Browse..."));

  EXPECT_EQ(Certificate().text, u"C:\\k\\a.p12");
  EXPECT_THAT(Certificate().Rows(), ElementsAre(u"C:\\k\\a.p12"));
}

TEST_F(DigitalSigDlgTest, ACreatedCertificateIsShownAndListedButTheWidthStays) {
  frontEnd.onDialog = [](CDialog& dialog) {
    SettingsSet(keys::kCertificatePath, u"C:/k/new.p12");
    dialog.EndDialog(kIdOk);
  };
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Create..."));

  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CSelfSignDlg"));
  EXPECT_EQ(Certificate().text, u"C:\\k\\new.p12");
  EXPECT_THAT(Certificate().Rows(), ElementsAre(u"C:\\k\\new.p12"));
  EXPECT_EQ(Certificate().DroppedWidth(), 0);
}

TEST_F(DigitalSigDlgTest, ACancelledCreateChangesNothing) {
  SettingsSet(keys::kCertificatePath, u"C:/k/earlier.p12");
  frontEnd.onDialog = [](CDialog& dialog) { dialog.OnCancel(); };
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Create..."));

  EXPECT_EQ(Certificate().text, u"");
  EXPECT_THAT(Certificate().Rows(), IsEmpty());
}

TEST_F(DigitalSigDlgTest, ACreateThatMadeNoFileShowsTheCertificateOfTheSettings) {
  SettingsSet(keys::kCertificatePath, u"C:/k/earlier.p12");
  frontEnd.onDialog = [](CDialog& dialog) {
    for (const char16_t* label : {u"Publisher name:", u"Organization unit:", u"Organization name:",
                                  u"Password:", u"Confirm password:", u"Save as:"}) {
      Find<Edit>(dialog, label).Type(u"x");
    }
    PressButton(dialog, u"OK");
    EXPECT_EQ(dialog.Result(), 1);
  };
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Create..."));

  EXPECT_EQ(Certificate().text, u"C:\\k\\earlier.p12");
}

TEST_F(DigitalSigDlgTest, ACreateThatLeftNoPathChangesNothing) {
  PutCertificates({u"C:\\k\\a.p12"});
  frontEnd.onDialog = [](CDialog& dialog) { dialog.EndDialog(kIdOk); };
  page.Create();

  ASSERT_TRUE(PressButton(page, u"Create..."));

  EXPECT_EQ(Certificate().text, u"C:\\k\\a.p12");
}

// --- Network interfaces -------------------------------------------------------------------------

TEST_F(DigitalSigDlgTest, NetworkInterfacesStandBesideTheDefaultInOrder) {
  AddInterface(7, u"Wi-Fi");
  AddInterface(4, u"Bridge");

  page.Create();

  EXPECT_THAT(Network().Rows(), ElementsAre(u"Bridge <10.0.0.2>", u"Default", u"Wi-Fi <10.0.0.2>"));
}

TEST_F(DigitalSigDlgTest, WithoutAStoredInterfaceTheFirstEntryIsSelectedThoughItIsNotTheDefault) {
  AddInterface(4, u"Bridge");

  page.Create();

  EXPECT_EQ(Network().text, u"Bridge <10.0.0.2>");
}

TEST_F(DigitalSigDlgTest, AStoredInterfaceIsSelectedInAnyCase) {
  AddInterface(4, u"Bridge");
  AddInterface(7, u"Wi-Fi");
  SettingsSet(keys::kHostAddress, u"WI-FI <10.0.0.2>");

  page.Create();

  EXPECT_EQ(Network().text, u"Wi-Fi <10.0.0.2>");
}

TEST_F(DigitalSigDlgTest, TheBeginningOfAnEntryIsNotThatEntry) {
  AddInterface(4, u"Bridge");
  AddInterface(7, u"Wi-Fi");
  SettingsSet(keys::kHostAddress, u"Wi-Fi");

  page.Create();

  EXPECT_EQ(Network().GetCurSel(), 0);
}

TEST_F(DigitalSigDlgTest, AStoredInterfaceThatHasGoneSelectsTheFirstEntry) {
  AddInterface(4, u"Bridge");
  SettingsSet(keys::kHostAddress, u"Wi-Fi <10.0.0.2>");

  page.Create();

  EXPECT_EQ(Network().GetCurSel(), 0);
  EXPECT_EQ(Network().text, u"Bridge <10.0.0.2>");
}

TEST_F(DigitalSigDlgTest, AFailedListingLeavesTheDefaultAlone) {
  AddInterface(4, u"Bridge");
  networkTables.addresses.status = TableStatus::kFailed;

  page.Create();

  EXPECT_THAT(Network().Rows(), ElementsAre(u"Default"));
  EXPECT_EQ(Network().text, u"Default");
}

TEST_F(DigitalSigDlgTest, ChoosingAnInterfaceIsAChange) {
  page.Create();

  Network().Choose(0);

  EXPECT_TRUE(page.changed);
}

// --- Markets ------------------------------------------------------------------------------------

TEST_F(DigitalSigDlgTest, MarketsOfTheHostsLanguageAreShownInTheFilesOrder) {
  host.languageCode = u"de_DE";
  PutMarkets("<market name=\"English\" url=\"e\"/>", u"en_US");
  PutMarkets("<market name=\"Zwei\" url=\"z\"/><market name=\"Eins\" url=\"1\"/>", u"de_DE");

  page.Create();

  EXPECT_THAT(Market().Rows(), ElementsAre(u"Zwei", u"Eins"));
  EXPECT_EQ(Market().text, u"Zwei");
}

TEST_F(DigitalSigDlgTest, TheStoredMarketIsSelectedByItsUrl) {
  PutMarkets("<market name=\"A\" url=\"a\"/><market name=\"B\" url=\"b\"/>");
  SettingsSet(keys::kMarketUrl, u"b");

  page.Create();

  EXPECT_EQ(Market().text, u"B");
}

TEST_F(DigitalSigDlgTest, AUrlInAnotherCaseFallsBackToTheFirstMarket) {
  PutMarkets("<market name=\"A\" url=\"a\"/><market name=\"B\" url=\"b\"/>");
  SettingsSet(keys::kMarketUrl, u"B");

  page.Create();

  EXPECT_EQ(Market().text, u"A");
}

TEST_F(DigitalSigDlgTest, AUrlThatIsNoLongerListedFallsBackToTheFirstMarket) {
  PutMarkets("<market name=\"A\" url=\"a\"/><market name=\"B\" url=\"b\"/>");
  SettingsSet(keys::kMarketUrl, u"gone");

  page.Create();

  EXPECT_EQ(Market().GetCurSel(), 0);
}

TEST_F(DigitalSigDlgTest, AMalformedMarketFileLeavesTheListEmptyAndThePageOpens) {
  PutMarkets("<market name=\"A\" url=\"a\">");

  page.Create();

  EXPECT_THAT(Market().Rows(), IsEmpty());
  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_TRUE(page.initialised);
}

TEST_F(DigitalSigDlgTest, ALanguageWithoutAMarketFileHasNoMarketsThoughOthersHave) {
  host.languageCode = u"it_IT";
  PutMarkets("<market name=\"English\" url=\"e\"/>", u"en_US");

  page.Create();

  EXPECT_THAT(Market().Rows(), IsEmpty());
  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_TRUE(page.initialised);
}

TEST_F(DigitalSigDlgTest, WhereTheRuntimeIsAlwaysEmbeddedTheMarketsAreNotRead) {
  PutMarkets("<market name=\"A\" url=\"a\"/>");
  SettingsSet(keys::kRuntimeKit, u"TAV26.0");

  page.Create();

  EXPECT_THAT(page.markets, IsEmpty());
  EXPECT_THAT(Market().Rows(), IsEmpty());
}

TEST_F(DigitalSigDlgTest, JustBelowThatLevelTheMarketsAreRead) {
  PutMarkets("<market name=\"A\" url=\"a\"/>");
  SettingsSet(keys::kRuntimeKit, u"TAV25.9");

  page.Create();

  EXPECT_THAT(Market().Rows(), ElementsAre(u"A"));
}

}  // namespace
}  // namespace qutav::test
