// Publishing from within the sheet.

#include <algorithm>
#include <stdexcept>

#include "SheetTest.h"
#include "descriptor/DescriptorDocument.h"

namespace qutav::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class SettingsSheetPublishTest : public SheetTest {
 protected:
  std::vector<std::u16string> MovieExports() const {
    return host.ScriptsBeginning(u"qu.getDocumentDOM().exportQMVPrivate");
  }
  std::size_t DeviceListings() const {
    const auto lines = processes.CommandLines();
    return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [](const auto& line) {
      return line.find(u"devices") != line.npos;
    }));
  }
  void ExpectOnlyMessage(const std::u16string& text, MessageIcon icon) const {
    ASSERT_THAT(frontEnd.messages, SizeIs(1));
    EXPECT_EQ(frontEnd.messages[0].text, text);
    EXPECT_EQ(frontEnd.messages[0].icon, icon);
    EXPECT_EQ(frontEnd.messages[0].title, u"Zenvoka Kestrow");
  }
  // Fills the page and presses Publish; expects that one message, the page in front, and nothing
  // packaged.
  void ExpectRefused(const std::u16string& certificate, const std::u16string& password,
                     const std::u16string& message) {
    Open([&](CPropertySheet& sheet) {
      CPropertyPage& page = TurnTo(sheet, u"Deployment");
      Find<ComboBox>(page, u"Certificate:").Type(certificate);
      Find<Edit>(page, u"Password:").Type(password);
      TurnTo(sheet, u"Icons");

      PressButton(sheet, u"Publish");

      EXPECT_EQ(sheet.GetActiveIndex(), 1);
      EXPECT_FALSE(sheet.HasEnded());
    });
    ExpectOnlyMessage(message, MessageIcon::kWarning);
    EXPECT_THAT(PackagerCommands(), IsEmpty());
  }
};

TEST_F(SettingsSheetPublishTest, PackagesStaysOpenAndReturnsToItsPage) {
  Open([&](CPropertySheet& sheet) {
    FillAndroidDeployment(sheet);
    TurnTo(sheet, u"Icons");

    PressButton(sheet, u"Publish");

    EXPECT_EQ(sheet.GetActiveIndex(), 2);
    EXPECT_FALSE(sheet.HasEnded());
    EXPECT_EQ(SettingsGet(keys::kExitOk), u"(as before)");
  });

  EXPECT_THAT(PackagerCommands(), ElementsAre(AllOf(HasSubstr("-target apk"),
                                                    HasSubstr("-keystore \"C:/keys/my.p12\""))));
  EXPECT_THAT(MovieExports(), SizeIs(1));
}

TEST_F(SettingsSheetPublishTest, ADeploymentPageThatWasNeverShownIsCreatedForIt) {
  Open([&](CPropertySheet& sheet) {
    PressButton(sheet, u"Publish");

    EXPECT_TRUE(sheet.Pages()[1]->IsCreated());
    EXPECT_EQ(sheet.GetActiveIndex(), 1);  // no certificate was ever chosen
  });

  ExpectOnlyMessage(u"Certificate must be selected", MessageIcon::kWarning);
}

TEST_F(SettingsSheetPublishTest, AnEmptyCertificateStopsInThePagesOwnValidation) {
  ExpectRefused(u"", u"secret", u"Certificate must be selected");
}

TEST_F(SettingsSheetPublishTest, AnEmptyPasswordStopsThereTooAndNoDialogAsksForIt) {
  ExpectRefused(u"C:\\keys\\my.p12", u"", u"Password is empty. Please enter a password.");

  EXPECT_THAT(frontEnd.dialogs, Not(Contains(u"CSignaturePasswordDlg")));
}

TEST_F(SettingsSheetPublishTest, ADeploymentPageThatCouldNotLoadItselfIsNotStored) {
  struct BrokenTables : FakeNetworkTables {
    NetworkTable<InterfaceAddress> Addresses() override { throw std::runtime_error("no tables"); }
  } broken;
  TheServices().networkTables = &broken;
  SettingsSet(keys::kCertificatePath, u"C:/keys/earlier.p12");

  Open([](CPropertySheet& sheet) {
    PressButton(sheet, u"Publish");
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    EXPECT_FALSE(sheet.HasEnded());
  });

  ExpectOnlyMessage(u"Unknown error.\n\nno tables", MessageIcon::kWarning);
  EXPECT_EQ(RegistryValue(registry, u"DigitalSign"), u"");
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/keys/earlier.p12");
  EXPECT_THAT(PackagerCommands(), IsEmpty());
}

TEST_F(SettingsSheetPublishTest, ARefusedDeploymentPageLeavesTheLanguagesInTheDocument) {
  Open([](CPropertySheet& sheet) {
    ToggleLanguage(sheet, u"French");
    PressButton(sheet, u"Publish");

    std::u16string languages;
    CurrentDescriptor.GetText("supportedLanguages", languages);
    EXPECT_EQ(languages, u"fr");
  });

  ExpectOnlyMessage(u"Certificate must be selected", MessageIcon::kWarning);
}

TEST_F(SettingsSheetPublishTest, LanguagesThatWereNotVisitedStandAsTheAuthorWroteThem) {
  PutLanguages("zz fr");

  Open([](CPropertySheet& sheet) {
    FillAndroidDeployment(sheet);
    PressButton(sheet, u"Publish");
  });

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<supportedLanguages>zz fr</supportedLanguages>"));
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<versionLabel"));  // the file was written
  EXPECT_THAT(PackagerCommands(), SizeIs(1));
}

TEST_F(SettingsSheetPublishTest, TheFileHasTheEditsOfEveryPageBeforeTheToolRuns) {
  std::string seen;
  processes.play = [&](const std::u16string& command) {
    if (command.find(u"-package") != command.npos) seen = DescriptorOnDisk();
    return PlayedAnswer{};
  };

  Open([&](CPropertySheet& sheet) {
    Find<Edit>(TurnTo(sheet, u"General"), u"App ID:").Type(u"com.new");
    auto& permissions = Find<CheckList>(TurnTo(sheet, u"Permissions"), u"Permission Name");
    permissions.ToggleByUser(permissions.FindRow(u"CAMERA"));
    ToggleLanguage(sheet, u"French");
    FillAndroidDeployment(sheet);
    PressButton(sheet, u"Publish");
  });

  EXPECT_THAT(seen, HasSubstr("<id>com.new</id>"));
  EXPECT_THAT(seen, HasSubstr("android.permission.CAMERA"));
  EXPECT_THAT(seen, HasSubstr("<supportedLanguages>fr</supportedLanguages>"));
}

TEST_F(SettingsSheetPublishTest, WithoutAVisitToGeneralTheDocumentIsSaved) {
  Open(
      [&](CPropertySheet& sheet) {
        ToggleLanguage(sheet, u"French");
        FillAndroidDeployment(sheet);
        PressButton(sheet, u"Publish");
        EXPECT_FALSE(sheet.Pages()[0]->IsCreated());
      },
      1);

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<supportedLanguages>fr</supportedLanguages>"));
  EXPECT_THAT(PackagerCommands(), SizeIs(1));
}

TEST_F(SettingsSheetPublishTest, ARefusedIdStopsBeforeTheToolRuns) {
  Open([&](CPropertySheet& sheet) {
    FillAndroidDeployment(sheet);
    Find<Edit>(TurnTo(sheet, u"General"), u"App ID:").Type(u"no blanks");
    PressButton(sheet, u"Publish");
  });

  EXPECT_THAT(frontEnd.messages, SizeIs(1));
  EXPECT_THAT(PackagerCommands(), IsEmpty());
}

TEST_F(SettingsSheetPublishTest, TheDeviceListIsFilledAnewAfterwards) {
  Open([&](CPropertySheet& sheet) {
    FillAndroidDeployment(sheet);
    CPropertyPage& page = TurnTo(sheet, u"Deployment");
    auto& devices = Find<CheckList>(page, u"Device Serial Number");
    EXPECT_EQ(devices.GetCount(), 0);

    PressButton(sheet, u"Publish");

    EXPECT_EQ(devices.GetCount(), 1);
    EXPECT_EQ(DeviceListings(), 1u);

    PressButton(sheet, u"Publish");

    EXPECT_EQ(devices.GetCount(), 1);
    EXPECT_EQ(DeviceListings(), 1u);  // the system is asked once
  });

  EXPECT_THAT(PackagerCommands(), SizeIs(2));
}

TEST_F(SettingsSheetPublishTest, WithoutJavaItTellsSoAndDoesNothingElseOnEitherForm) {
  folders.commonProgramFiles.clear();
  const std::string before = DescriptorOnDisk();
  const auto publish = [&](CPropertySheet& sheet) {
    ToggleLanguage(sheet, u"French");
    PressButton(sheet, u"Publish");
    EXPECT_FALSE(sheet.Pages()[1]->IsCreated());
  };

  Open(publish);
  UseIosForm();
  Open(publish);

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Can not find JVM path.", u"Can not find JVM path."));
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
  EXPECT_EQ(DescriptorOnDisk(), before);
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(SettingsSheetPublishTest, OnIosItWantsThePackagersFiles) {
  UseIosForm();
  files.Delete(u"C:/host/DRN/lib/drn.jar");

  Open([](CPropertySheet& sheet) {
    PressButton(sheet, u"Publish");
    EXPECT_FALSE(sheet.Pages()[1]->IsCreated());
    EXPECT_EQ(sheet.GetActiveIndex(), 0);
  });

  EXPECT_THAT(PackagerCommands(), IsEmpty());
  ExpectOnlyMessage(
      u"TAV for iOS publishing requires files that are not installed.\r\nPlease quit Quorl "
      u"Professional and run the original installer to ensure that all optional components are "
      u"installed.",
      MessageIcon::kInformation);
}

TEST_F(SettingsSheetPublishTest, OnIosItStoresTheLanguagesAndPackages) {
  UseIosForm();

  Open([&](CPropertySheet& sheet) {
    ToggleLanguage(sheet, u"French");
    PressButton(sheet, u"Publish");
    EXPECT_EQ(sheet.GetActiveIndex(), 3);
  });

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<supportedLanguages>fr</supportedLanguages>"));
  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr("-target ipa-test")));
  EXPECT_THAT(MovieExports(), SizeIs(1));
}

TEST_F(SettingsSheetPublishTest, OnIosLanguagesThatWereNotVisitedStandAsTheAuthorWroteThem) {
  UseIosForm();
  PutLanguages("zz fr");

  Open([](CPropertySheet& sheet) { PressButton(sheet, u"Publish"); });

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<supportedLanguages>zz fr</supportedLanguages>"));
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<versionLabel"));  // the file was written
  EXPECT_THAT(PackagerCommands(), SizeIs(1));
}

TEST_F(SettingsSheetPublishTest, OnIosARefusedIdStopsBeforeTheToolRuns) {
  UseIosForm();

  Open([](CPropertySheet& sheet) {
    Find<Edit>(TurnTo(sheet, u"General"), u"App ID:").Type(u"no blanks");
    PressButton(sheet, u"Publish");
    EXPECT_FALSE(sheet.HasEnded());
  });

  EXPECT_THAT(frontEnd.messages, SizeIs(1));
  EXPECT_THAT(PackagerCommands(), IsEmpty());
}

TEST_F(SettingsSheetPublishTest, OnIosARefusedDeploymentPageKeepsTheLanguagesOutOfTheDocument) {
  UseIosForm();
  SettingsSet(keys::kIpaCertificatePath, u"");

  Open([](CPropertySheet& sheet) {
    ToggleLanguage(sheet, u"French");
    PressButton(sheet, u"Publish");
    PressButton(sheet, u"OK");
    EXPECT_TRUE(sheet.HasEnded());
  });

  ExpectOnlyMessage(u"Certificate must be selected", MessageIcon::kWarning);
  EXPECT_THAT(DescriptorOnDisk(), Not(HasSubstr("supportedLanguages")));
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<versionLabel"));  // the file was written
}

TEST_F(SettingsSheetPublishTest, OnIosWithoutAVisitToGeneralTheRunUsesTheFileAsItWas) {
  UseIosForm();
  const std::string before = DescriptorOnDisk();

  Open(
      [&](CPropertySheet& sheet) {
        Find<Edit>(TurnTo(sheet, u"Deployment"), u"App ID:").Type(u"com.deployment");
        ToggleLanguage(sheet, u"French");
        PressButton(sheet, u"Publish");
      },
      1);

  EXPECT_EQ(DescriptorOnDisk(), before);
  EXPECT_THAT(PackagerCommands(), SizeIs(1));
}

TEST_F(SettingsSheetPublishTest, OnIosARefusedDeploymentPageComesToTheFront) {
  UseIosForm();
  SettingsSet(keys::kIpaCertificatePath, u"");

  Open([&](CPropertySheet& sheet) {
    PressButton(sheet, u"Publish");
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
  });

  ExpectOnlyMessage(u"Certificate must be selected", MessageIcon::kWarning);
  EXPECT_THAT(PackagerCommands(), IsEmpty());
}

// --- Signing material that goes behind the validation -------------------------------------------

class SettingsSheetSigningTest : public SettingsSheetPublishTest {
 protected:
  // Publishes from the icons, with something happening when they come back to the front. The page
  // in front afterwards.
  int PublishWhile(const std::function<void()>& happens) {
    int active = -1;
    Open([&](CPropertySheet& sheet) {
      FillAndroidDeployment(sheet);
      TurnTo(sheet, u"Icons");
      frontEnd.sheetWindow.onShowPage = [&](int page) {
        if (page == 2) happens();
      };
      PressButton(sheet, u"Publish");
      active = sheet.GetActiveIndex();
      EXPECT_FALSE(sheet.HasEnded());
    });
    frontEnd.sheetWindow.onShowPage = nullptr;
    return active;
  }
  // Answers the password dialog; every other dialog ticks until it ends.
  void AnswerPassword(const std::u16string& button) {
    frontEnd.onDialog = [=](CDialog& dialog) {
      if (dialog.ClassName() != u"CSignaturePasswordDlg") return TickUntilEnded(dialog);
      Find<Edit>(dialog, u"Password:").Type(u"typed");
      PressButton(dialog, button);
    };
  }
  static void LosePassword() { SettingsSet(keys::kCertificatePassword, u""); }
};

TEST_F(SettingsSheetSigningTest, ALostPasswordIsAskedForAndCancelPackagesNothing) {
  AnswerPassword(u"Cancel");

  EXPECT_EQ(PublishWhile([] { LosePassword(); }), 2);

  EXPECT_THAT(frontEnd.dialogs, Contains(u"CSignaturePasswordDlg"));
  EXPECT_THAT(PackagerCommands(), IsEmpty());
}

TEST_F(SettingsSheetSigningTest, ALostPasswordIsAskedForAndOkPackagesWithTheTypedOne) {
  AnswerPassword(u"OK");

  EXPECT_EQ(PublishWhile([] { LosePassword(); }), 2);

  EXPECT_THAT(frontEnd.dialogs, Contains(u"CSignaturePasswordDlg"));
  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr("\"typed\"")));
}

TEST_F(SettingsSheetSigningTest, ALostCertificateBringsItsPageToTheFrontAndPackagesNothing) {
  EXPECT_EQ(PublishWhile([] { SettingsSet(keys::kCertificatePath, u""); }), 1);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_THAT(frontEnd.dialogs, Not(Contains(u"CSignaturePasswordDlg")));
  EXPECT_THAT(PackagerCommands(), IsEmpty());
}

TEST_F(SettingsSheetSigningTest, APackageThatIsNotToBeSignedNeedsNeither) {
  EXPECT_EQ(PublishWhile([] {
              SetRegistryString(u"DigitalSign", u"Sign");
              SettingsSet(keys::kCertificatePath, u"");
              LosePassword();
            }),
            2);

  EXPECT_THAT(frontEnd.dialogs, Not(Contains(u"CSignaturePasswordDlg")));
  EXPECT_THAT(PackagerCommands(), SizeIs(1));
}

}  // namespace
}  // namespace qutav::test
