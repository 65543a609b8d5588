#include "PackagingTest.h"
#include "packaging/CountryCodes.h"
#include "packaging/SelfSignDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SelfSignDlgTest : public PackagingTest {
 protected:
  SelfSignDlgTest() {
    SettingsRemove(keys::kCertificatePath);
    dialog.Create();
  }

  Edit& Field(const std::u16string& label) { return Find<Edit>(dialog, label); }

  void FillIn() {
    Field(u"Publisher name:").Type(u"Jane Doe");
    Field(u"Organization unit:").Type(u"Games");
    Field(u"Organization name:").Type(u"Studio");
    Field(u"Password:").Type(u"secret");
    Field(u"Confirm password:").Type(u"secret");
    Field(u"Save as:").Type(u"C:\\k\\new.p12");
  }

  // The tool ends so, and leaves the certificate's file when that is 0.
  void PlayCertificateTool(std::uint32_t exitCode, const std::string& output = {}) {
    processes.play = [=, this](const std::u16string&) {
      if (exitCode == 0) files.Put(u"C:/k/new.p12");
      return PlayedAnswer{output, exitCode};
    };
  }

  std::u16string Arguments() {
    std::u16string arguments;
    EXPECT_TRUE(dialog.BuildCertificateArguments(arguments));
    return arguments;
  }

  void PressOk() { ASSERT_TRUE(PressButton(dialog, u"OK")); }

  // One warning box, nothing run, nothing stored, the dialog open.
  void ExpectStaysOpenWith(const std::u16string& text) {
    ExpectWarning(text);
    EXPECT_THAT(processes.CommandLines(), IsEmpty());
    EXPECT_FALSE(dialog.HasEnded());
    EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
  }

  CSelfSignDlg dialog{nullptr};
};

TEST_F(SelfSignDlgTest, ShowsItsFieldsInOrderUnderItsTitle) {
  EXPECT_EQ(dialog.Title(), u"Create Self-Signed Digital Certificate");
  EXPECT_EQ(dialog.ClassName(), u"CSelfSignDlg");
  std::vector<std::u16string> labels;
  for (const auto& control : dialog.Controls()) labels.push_back(control->label);
  EXPECT_THAT(labels, ElementsAre(u"Publisher name:", u"Organization unit:", u"Organization name:",
                                  u"Country:", u"Password:", u"Confirm password:", u"Type:",
                                  u"Validity period:", u"years", u"Save as:", u"Browse...", u"Help",
                                  u"OK", u"Cancel"));
}

TEST_F(SelfSignDlgTest, StartsWithItsDefaults) {
  for (const char16_t* label : {u"Publisher name:", u"Organization unit:", u"Organization name:",
                                u"Password:", u"Confirm password:", u"Save as:"}) {
    EXPECT_EQ(Field(label).text, u"");
  }
  EXPECT_EQ(Find<ComboBox>(dialog, u"Country:").text, u"US");
  EXPECT_EQ(Field(u"Validity period:").text, u"25");
}

TEST_F(SelfSignDlgTest, FieldsTakeWhatTheyAreMeantFor) {
  EXPECT_EQ(Field(u"Password:").style, EditStyle::kPassword);
  EXPECT_EQ(Field(u"Confirm password:").style, EditStyle::kPassword);
  EXPECT_EQ(Field(u"Validity period:").style, EditStyle::kDigits);
  EXPECT_EQ(Find<ComboBox>(dialog, u"Country:").style, ComboStyle::kDropDown);
  EXPECT_TRUE(Find<Button>(dialog, u"OK").isDefault);
}

TEST_F(SelfSignDlgTest, TheLongerKeyIsChosenForGood) {
  const auto& type = Find<ComboBox>(dialog, u"Type:");

  EXPECT_THAT(type.Rows(), ElementsAre(u"1024-RSA", u"2048-RSA"));
  EXPECT_EQ(type.GetCurSel(), 1);
  EXPECT_EQ(type.text, u"2048-RSA");
  EXPECT_EQ(type.style, ComboStyle::kDropList);
  EXPECT_FALSE(type.enabled);
}

TEST_F(SelfSignDlgTest, TheCountryBoxSortsAll246Codes) {
  const auto& country = Find<ComboBox>(dialog, u"Country:");

  EXPECT_EQ(country.GetCount(), 246);
  EXPECT_TRUE(std::is_sorted(country.Rows().begin(), country.Rows().end()));
  EXPECT_EQ(country.GetRow(0), u"AD");
  EXPECT_EQ(country.GetRow(245), u"ZW");
}

TEST_F(SelfSignDlgTest, CountryCodesAreKeptInTheirOwnOrder) {
  std::u16string joined;
  for (const std::u16string& code : CountryCodes()) joined += (joined.empty() ? u"" : u" ") + code;

  EXPECT_EQ(joined,
            u"AF AX AL DZ AS AD AO AI AQ AG AR AM AW AU AT AZ BS BH BD BB BY BE BZ BJ BM BT BO "
            u"BA BW BV BR IO BN BG BF BI KH CM CA CV KY CF TD CL CN CX CC CO KM CG CD CK CR CI "
            u"HR CU CY CZ DK DJ DM DO EC EG SV GQ ER EE ET FK FO FJ FI FR GF PF TF GA GM GE DE "
            u"GH GI GR GL GD GP GU GT GG GN GW GY HT HM VA HN HK HU IS IN ID IR IQ IE IM IL IT "
            u"JM JP JE JO KZ KE KI KP KR KW KG LA LV LB LS LR LY LI LT LU MO MK MG MW MY MV ML "
            u"MT MH MQ MR MU YT MX FM MD MC MN ME MS MA MZ MM NA NR NP NL AN NC NZ NI NE NG NU "
            u"NF MP NO OM PK PW PS PA PG PY PE PH PN PL PT PR QA RE RO RU RW BL SH KN LC MF PM "
            u"VC WS SM ST SA SN RS SC SL SG SK SI SB SO ZA GS ES LK SD SR SJ SZ SE CH SY TW TJ "
            u"TZ TH TL TG TK TO TT TN TR TM TC TV UG UA AE GB US UM UY UZ VU VE VN VG VI WF EH "
            u"YE ZM ZW");
}

TEST_F(SelfSignDlgTest, AnOlderWindowsShowsNamesInAnotherFont) {
  folders.majorVersion = 5;
  CSelfSignDlg old(nullptr);
  old.Create();

  EXPECT_EQ(Find<Edit>(old, u"Publisher name:").fontFace, u"SimSun-18030");
  EXPECT_EQ(Find<Edit>(old, u"Organization unit:").fontFace, u"SimSun-18030");
  EXPECT_EQ(Find<Edit>(old, u"Organization name:").fontFace, u"SimSun-18030");
  EXPECT_EQ(Find<Edit>(old, u"Save as:").fontFace, u"");
}

TEST_F(SelfSignDlgTest, AnotherWindowsShowsNamesInTheDialogsFont) {
  EXPECT_EQ(Field(u"Publisher name:").fontFace, u"");
}

// --- Arguments ----------------------------------------------------------------------------------

TEST_F(SelfSignDlgTest, ArgumentsHoldEveryFieldInQuotes) {
  FillIn();

  EXPECT_EQ(Arguments(),
            u" -cn \"Jane Doe\" -ou \"Games\" -o \"Studio\" -c \"US\" -validityPeriod 25  2048-RSA"
            u" \"C:\\k\\new.p12\" \"secret\"");
}

TEST_F(SelfSignDlgTest, ArgumentsAreAppended) {
  FillIn();
  std::u16string arguments = u"before";

  EXPECT_TRUE(dialog.BuildCertificateArguments(arguments));

  EXPECT_TRUE(arguments.starts_with(u"before -cn \"Jane Doe\""));
}

TEST_F(SelfSignDlgTest, AnEmptyValidityPeriodLeavesItsOptionOut) {
  FillIn();
  Field(u"Validity period:").Type(u"");

  EXPECT_EQ(Arguments(),
            u" -cn \"Jane Doe\" -ou \"Games\" -o \"Studio\" -c \"US\" 2048-RSA"
            u" \"C:\\k\\new.p12\" \"secret\"");
}

TEST_F(SelfSignDlgTest, ATypedCountryIsPassedOnUnchanged) {
  FillIn();
  Find<ComboBox>(dialog, u"Country:").Type(u"XX");

  EXPECT_NE(Arguments().find(u" -c \"XX\""), std::u16string::npos);
}

TEST_F(SelfSignDlgTest, AFileNameWithoutAnEndingGetsOne) {
  FillIn();
  Field(u"Save as:").Type(u"cert");

  EXPECT_NE(Arguments().find(u" \"cert.p12\" "), std::u16string::npos);
  EXPECT_EQ(Field(u"Save as:").text, u"cert.p12");
}

TEST_F(SelfSignDlgTest, AKeystoreEndingOfAnyCaseStays) {
  FillIn();
  Field(u"Save as:").Type(u"cert.PFX");

  EXPECT_NE(Arguments().find(u" \"cert.PFX\" "), std::u16string::npos);
  EXPECT_EQ(Field(u"Save as:").text, u"cert.PFX");
}

TEST_F(SelfSignDlgTest, AnyOtherEndingGetsOneBehindIt) {
  FillIn();
  Field(u"Save as:").Type(u"C:/my.keys/cert");

  Arguments();

  EXPECT_EQ(Field(u"Save as:").text, u"C:/my.keys/cert.p12");
}

TEST_F(SelfSignDlgTest, EachRequiredFieldEndsTheArgumentsWhenItIsEmpty) {
  for (const char16_t* label : {u"Publisher name:", u"Organization unit:", u"Organization name:",
                                u"Country:", u"Save as:", u"Password:"}) {
    FillIn();
    Find<ComboBox>(dialog, u"Country:").Type(u"US");
    FindControl(dialog, label)->text.clear();
    std::u16string arguments;

    EXPECT_FALSE(dialog.BuildCertificateArguments(arguments)) << ToUtf8(label);
  }
}

TEST_F(SelfSignDlgTest, TheEndingIsAddedThoughThePasswordIsStillMissing) {
  FillIn();
  Field(u"Save as:").Type(u"cert");
  Field(u"Password:").Type(u"");
  std::u16string arguments;

  EXPECT_FALSE(dialog.BuildCertificateArguments(arguments));

  EXPECT_EQ(Field(u"Save as:").text, u"cert.p12");
}

TEST_F(SelfSignDlgTest, AFieldThatIsEmptyEarlierLeavesTheFileNameAlone) {
  FillIn();
  Field(u"Publisher name:").Type(u"");
  Field(u"Save as:").Type(u"cert");
  std::u16string arguments;

  EXPECT_FALSE(dialog.BuildCertificateArguments(arguments));

  EXPECT_EQ(Field(u"Save as:").text, u"cert");
}

// --- The tool -----------------------------------------------------------------------------------

TEST_F(SelfSignDlgTest, TheCommandHoldsTwoBlanksBehindItsNameAndTwoBeforeTheType) {
  FillIn();
  PressOk();

  EXPECT_THAT(processes.CommandLines(),
              ElementsAre(std::u16string(kToolHead) +
                          u"-certificate  -cn \"Jane Doe\" -ou \"Games\" -o \"Studio\" -c \"US\""
                          u" -validityPeriod 25  2048-RSA \"C:\\k\\new.p12\" \"secret\""));
}

TEST_F(SelfSignDlgTest, WithoutJavaNothingIsRun) {
  folders.commonProgramFiles = u"";

  EXPECT_FALSE(dialog.RunCertificateTool(u" args"));

  ExpectWarning(u"Can not find JVM path.");
  // The window that has the focus stands for the dialog.
  EXPECT_EQ(frontEnd.messages.at(0).owner, frontEnd.focus);
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(SelfSignDlgTest, ExitCode0TellsOfTheNewCertificate) {
  PlayTool(0);

  EXPECT_TRUE(dialog.RunCertificateTool(u" args"));

  ExpectInformation(u"Self-signed certificate has been created.");
}

TEST_F(SelfSignDlgTest, ARunThatCouldNotBeFollowedCountsAsSuccess) {
  processes.pipesFail = true;

  EXPECT_TRUE(dialog.RunCertificateTool(u" args"));

  ExpectInformation(u"Self-signed certificate has been created.");
}

TEST_F(SelfSignDlgTest, ANegativeExitCodeCountsAsSuccess) {
  PlayTool(0xC0000005u, "crashed");

  EXPECT_TRUE(dialog.RunCertificateTool(u" args"));

  ExpectInformation(u"Self-signed certificate has been created.");
}

TEST_F(SelfSignDlgTest, ExitCode2TellsTheOutputBeforeTheUsage) {
  PlayTool(2, "no such option -x\nusage: kob -certificate\nusage: more");

  EXPECT_FALSE(dialog.RunCertificateTool(u" args"));

  ExpectWarning(u"Creating self signed certificate failed: no such option -x\n");
}

TEST_F(SelfSignDlgTest, ExitCode2WithoutUsageTellsTheWholeOutput) {
  PlayTool(2, "no such file");

  EXPECT_FALSE(dialog.RunCertificateTool(u" args"));

  ExpectWarning(u"Creating self signed certificate failed: no such file");
}

TEST_F(SelfSignDlgTest, ExitCode11HasItsOwnMessage) {
  PlayTool(11, "cannot be created");

  EXPECT_FALSE(dialog.RunCertificateTool(u" args"));

  ExpectWarning(u"Error creating self-signed certificate.");
}

TEST_F(SelfSignDlgTest, AnyOtherExitCodeTellsTheWholeOutput) {
  PlayTool(1, "went wrong, usage: none");

  EXPECT_FALSE(dialog.RunCertificateTool(u" args"));

  ExpectWarning(u"Creating self signed certificate failed: went wrong, usage: none");
}

// --- OK -----------------------------------------------------------------------------------------

TEST_F(SelfSignDlgTest, OkStoresTheNewCertificateAndCloses) {
  FillIn();
  PlayCertificateTool(0);

  PressOk();

  EXPECT_TRUE(dialog.HasEnded());
  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/k/new.p12");
  ExpectInformation(u"Self-signed certificate has been created.");
}

TEST_F(SelfSignDlgTest, OkStoresNoPassword) {
  SettingsRemove(keys::kCertificatePassword);
  FillIn();
  PlayCertificateTool(0);

  PressOk();

  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePassword));
}

TEST_F(SelfSignDlgTest, OkWithAnEmptyFieldAsksForAll) {
  FillIn();
  Field(u"Organization unit:").Type(u"");

  PressOk();

  ExpectStaysOpenWith(u"All fields must be filled.");
}

TEST_F(SelfSignDlgTest, OkWithAnEmptyPasswordAsksForAll) {
  FillIn();
  Field(u"Password:").Type(u"");

  PressOk();

  ExpectStaysOpenWith(u"All fields must be filled.");
}

TEST_F(SelfSignDlgTest, ABlankConfirmationIsAMismatch) {
  FillIn();
  Field(u"Confirm password:").Type(u"");

  PressOk();

  ExpectStaysOpenWith(u"Password entries do not match. Please re-enter them.");
}

TEST_F(SelfSignDlgTest, AConfirmationInAnotherCaseIsAMismatch) {
  FillIn();
  Field(u"Confirm password:").Type(u"Secret");

  PressOk();

  ExpectStaysOpenWith(u"Password entries do not match. Please re-enter them.");
}

TEST_F(SelfSignDlgTest, AnExistingFileIsOverwrittenOnlyWhenTheUserAgrees) {
  FillIn();
  files.Put(u"C:/k/new.p12");
  PlayCertificateTool(0);

  PressOk();

  ASSERT_EQ(frontEnd.messages.size(), 2u);
  const ShownMessage& question = frontEnd.messages[0];
  EXPECT_EQ(question.text, u"The certificate file exists. Do you want to overwrite it?");
  EXPECT_EQ(question.title, u"Zenvoka Kestrow");
  EXPECT_EQ(question.icon, MessageIcon::kWarning);
  EXPECT_EQ(question.buttons, MessageButtons::kOkCancel);
  EXPECT_EQ(processes.CommandLines().size(), 1u);
  EXPECT_TRUE(dialog.HasEnded());
}

TEST_F(SelfSignDlgTest, DecliningTheQuestionKeepsTheDialogOpenAndRunsNothing) {
  FillIn();
  files.Put(u"C:/k/new.p12");
  frontEnd.answer = kIdCancel;

  PressOk();

  EXPECT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  EXPECT_FALSE(dialog.HasEnded());
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
}

TEST_F(SelfSignDlgTest, AMismatchIsToldBeforeTheQuestionAboutTheFile) {
  FillIn();
  files.Put(u"C:/k/new.p12");
  Field(u"Confirm password:").Type(u"other");

  PressOk();

  ExpectStaysOpenWith(u"Password entries do not match. Please re-enter them.");
}

TEST_F(SelfSignDlgTest, TheQuestionIsAskedOfTheNameWithItsEnding) {
  FillIn();
  Field(u"Save as:").Type(u"C:\\k\\new");
  files.Put(u"C:/k/new.p12");
  frontEnd.answer = kIdCancel;

  PressOk();

  EXPECT_THAT(frontEnd.Texts(),
              ElementsAre(u"The certificate file exists. Do you want to overwrite it?"));
  EXPECT_EQ(Field(u"Save as:").text, u"C:\\k\\new.p12");
}

TEST_F(SelfSignDlgTest, AFailedRunOverAnExistingFileStoresNothing) {
  FillIn();
  files.Put(u"C:/k/new.p12");
  PlayCertificateTool(11);

  PressOk();

  EXPECT_EQ(processes.CommandLines().size(), 1u);
  EXPECT_FALSE(dialog.HasEnded());
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
}

TEST_F(SelfSignDlgTest, AFailedRunKeepsTheDialogOpenWithAllFields) {
  FillIn();
  PlayCertificateTool(11);

  PressOk();

  EXPECT_FALSE(dialog.HasEnded());
  EXPECT_EQ(Field(u"Publisher name:").text, u"Jane Doe");
  EXPECT_EQ(Field(u"Password:").text, u"secret");
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
}

TEST_F(SelfSignDlgTest, ASuccessWithoutAFileStoresNothingAndCloses) {
  FillIn();
  PlayTool(0);

  PressOk();

  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
}

TEST_F(SelfSignDlgTest, CancelHasNoOtherEffect) {
  FillIn();

  ASSERT_TRUE(PressButton(dialog, u"Cancel"));

  EXPECT_EQ(dialog.Result(), 2);
  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
}

TEST_F(SelfSignDlgTest, HelpOpensTheMakersPage) {
  ASSERT_TRUE(PressButton(dialog, u"Help"));

  EXPECT_THAT(
      frontEnd.links,
      ElementsAre(u"https://www.zenvoka.example/go/learn_tav_android_using_quorl_vr5_5_en"));
  EXPECT_FALSE(dialog.HasEnded());
}

// --- Browse -------------------------------------------------------------------------------------

class SelfSignBrowseTest : public SelfSignDlgTest {
 protected:
  // The start name that the file dialog gets while the field holds a text.
  std::u16string StartNameFor(const std::u16string& text) {
    Field(u"Save as:").Type(text);
    EXPECT_TRUE(PressButton(dialog, u"Browse..."));
    return frontEnd.fileDialogs.empty() ? u"(no dialog)" : frontEnd.fileDialogs.back().startName;
  }
};

TEST_F(SelfSignBrowseTest, AsksForAFileToSave) {
  ASSERT_TRUE(PressButton(dialog, u"Browse..."));

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  const FileDialogRequest& request = frontEnd.fileDialogs.front();
  EXPECT_EQ(request.kind, FileDialogKind::kSave);
  EXPECT_EQ(request.title, u"Select File Destination");
  EXPECT_EQ(request.filter, u"Certificate File (*.p12)||");
  EXPECT_EQ(request.defaultExtension, u"p12");
  EXPECT_EQ(request.owner, frontEnd.focus);
}

TEST_F(SelfSignBrowseTest, TheChosenPathComesWithForwardSlashes) {
  frontEnd.chosenFile = u"C:\\k\\chosen.p12";

  ASSERT_TRUE(PressButton(dialog, u"Browse..."));

  EXPECT_EQ(Field(u"Save as:").text, u"C:/k/chosen.p12");
}

TEST_F(SelfSignBrowseTest, ACancelledDialogLeavesTheField) {
  Field(u"Save as:").Type(u"C:/k/old.p12");

  ASSERT_TRUE(PressButton(dialog, u"Browse..."));

  EXPECT_EQ(Field(u"Save as:").text, u"C:/k/old.p12");
}

TEST_F(SelfSignBrowseTest, AnEmptyFieldStartsWithTheMoviesName) {
  EXPECT_EQ(StartNameFor(u""), u"Game");
}

TEST_F(SelfSignBrowseTest, AFilledFieldStartsWithItsNameAlone) {
  EXPECT_EQ(StartNameFor(u"C:/k.d/my.cert.p12"), u"my.cert");
  EXPECT_EQ(StartNameFor(u"/cert.p12"), u"cert");
  EXPECT_EQ(StartNameFor(u"C:/k/cert"), u"cert");
}

TEST_F(SelfSignBrowseTest, OnlyForwardSlashesPartTheNameFromItsFolder) {
  EXPECT_EQ(StartNameFor(u"C:\\k\\my.cert.p12"), u"C:\\k\\my.cert");
}

TEST_F(SelfSignBrowseTest, AFolderHasNoNameToStartWith) { EXPECT_EQ(StartNameFor(u"C:/k/"), u""); }

TEST_F(SelfSignBrowseTest, ADotAtTheBeginningOfTheNameStays) {
  EXPECT_EQ(StartNameFor(u"C:/k/.p12"), u".p12");
}

}  // namespace
}  // namespace qutav::test
