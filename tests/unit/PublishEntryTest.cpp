#include "PublishableDocumentTest.h"
#include "framework/CPropertySheet.h"
#include "settings_ui/PublishEntry.h"

namespace qutav::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class PublishEntryTest : public PublishableDocumentTest {
 protected:
  PublishEntryTest() {
    EXPECT_TRUE(Prepare());
    SetTargets(u"false", u"true", u"");
    frontEnd.onSheet = [this](CPropertySheet& sheet) {
      sheetPages.push_back(sheet.GetActiveIndex());
    };
  }

  static void SetTargets(const std::u16string& ipa, const std::u16string& tav,
                         const std::u16string& exe) {
    SettingsSet(keys::kPublishIpa, ipa);
    SettingsSet(keys::kPublishTav, tav);
    SettingsSet(keys::kPublishExe, exe);
  }
  static void SetKeystore(const std::u16string& path, const std::u16string& password) {
    SettingsSet(keys::kCertificatePath, path);
    SettingsSet(keys::kCertificatePassword, password);
  }
  static void SetIosSigning(const std::u16string& path, const std::u16string& password) {
    SettingsSet(keys::kIpaCertificatePath, path);
    SettingsSet(keys::kIpaCertificatePassword, password);
    SettingsSet(keys::kIpaProvisioningProfile, u"C:/keys/my.mobileprovision");
  }
  std::size_t Exports() const {
    return host.ScriptsBeginning(u"qu.getDocumentDOM().exportQMVPrivate").size();
  }

  std::vector<int> sheetPages;
};

TEST_F(PublishEntryTest, PackagesForAndroidAndReturnsTheResultOfTheDriver) {
  EXPECT_EQ(PublishEntry(), 1);

  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr("-target apk-debug  -connect")));
}

TEST_F(PublishEntryTest, AFailedRunGivesZero) {
  files.Delete(u"C:/m/Game.qmv");

  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_THAT(sheetPages, IsEmpty());
}

TEST_F(PublishEntryTest, TheIosMarkIsLookedAtFirst) {
  SetTargets(u"true", u"true", u"true");
  SetIosSigning(u"C:/keys/ios.p12", u"secret");

  EXPECT_EQ(PublishEntry(), 1);

  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr("-target ipa-test")));
}

TEST_F(PublishEntryTest, TheInstallerIsMadeOnlyWithoutTheAndroidMark) {
  SetTargets(u"false", u"", u"true");

  EXPECT_EQ(PublishEntry(), 1);

  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr(" -target native ")));
}

TEST_F(PublishEntryTest, TheAndroidMarkPrevailsOverTheInstaller) {
  SetTargets(u"false", u"true", u"true");

  PublishEntry();

  EXPECT_THAT(PackagerCommands(), ElementsAre(Not(HasSubstr(" -target native "))));
}

TEST_F(PublishEntryTest, WithoutAnyMarkItIsAndroid) {
  SetTargets(u"", u"", u"");

  PublishEntry();

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"APK file has been created."));
}

TEST_F(PublishEntryTest, WithoutAKeystoreTheSheetOpensOnTheDeploymentPageInSilence) {
  SetKeystore(u"", u"secret");

  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_THAT(sheetPages, ElementsAre(1));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(PublishEntryTest, WithoutAPasswordTheSheetOpens) {
  SetKeystore(u"C:/keys/my.p12", u"");

  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_THAT(sheetPages, ElementsAre(1));
}

TEST_F(PublishEntryTest, TheInstallerNeedsTheKeystoreToo) {
  SetTargets(u"false", u"", u"true");
  SetKeystore(u"", u"");

  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_THAT(sheetPages, ElementsAre(1));
}

TEST_F(PublishEntryTest, IosNeedsItsOwnKeystoreAndPassword) {
  SetTargets(u"true", u"", u"");

  SetIosSigning(u"", u"secret");
  EXPECT_EQ(PublishEntry(), 0);
  SetIosSigning(u"C:/keys/ios.p12", u"");
  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_THAT(sheetPages, ElementsAre(1, 1));
}

TEST_F(PublishEntryTest, PreparingAndroidPassesWithoutACertificateAndNamesNoKeystore) {
  SetRegistryString(u"DigitalSign", u"prepare");
  SetKeystore(u"", u"");

  EXPECT_EQ(PublishEntry(), 1);

  EXPECT_THAT(PackagerCommands(),
              ElementsAre(AllOf(HasSubstr(" -prepare "), Not(HasSubstr("-keystore")))));
  EXPECT_THAT(sheetPages, IsEmpty());
}

TEST_F(PublishEntryTest, TheTextSignAsksForACertificateAsAnEmptyOneDoes) {
  SetRegistryString(u"DigitalSign", u"sign");
  SetKeystore(u"", u"");

  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_THAT(sheetPages, ElementsAre(1));
}

TEST_F(PublishEntryTest, TheTextSignInAnotherCasePassesWithoutACertificate) {
  SetRegistryString(u"DigitalSign", u"Sign");
  SetKeystore(u"", u"");

  EXPECT_EQ(PublishEntry(), 1);

  EXPECT_THAT(sheetPages, IsEmpty());
}

TEST_F(PublishEntryTest, PreparingDoesNotFreeIosFromItsCertificate) {
  SetTargets(u"true", u"", u"");
  SetRegistryString(u"DigitalSign", u"prepare");
  SetIosSigning(u"", u"");

  EXPECT_EQ(PublishEntry(), 0);

  EXPECT_THAT(sheetPages, ElementsAre(1));
}

TEST_F(PublishEntryTest, TheMovieIsExportedFirstExactlyForTheTypeDebug) {
  for (const char16_t* type : {u"", u"release", u"Debug", u"release-emulator"}) {
    SettingsSet(keys::kPublishType, type);
    PublishEntry();
  }
  EXPECT_EQ(Exports(), 0u);

  SettingsSet(keys::kPublishType, u"debug");
  PublishEntry();

  EXPECT_EQ(Exports(), 1u);
}

}  // namespace
}  // namespace qutav::test
