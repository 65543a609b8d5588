// Publishing from within the sheet.

#include "SheetTest.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class SettingsSheetPublishTest : public SheetTest {
 protected:
  static void ToggleLanguage(CPropertySheet& sheet, const std::u16string& name) {
    auto& list = Find<CheckList>(TurnTo(sheet, u"Languages"), u"Supported Languages");
    list.ToggleByUser(list.FindRow(name));
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

  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr("-keystore \"C:/keys/my.p12\"")));
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
  });
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

  Open([](CPropertySheet& sheet) { PressButton(sheet, u"Publish"); });

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

}  // namespace
}  // namespace qutav::test
