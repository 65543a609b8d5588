// Which password signs a package, and when the settings forget it.

#include "PackagingTest.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

class PublishDriverPasswordsTest : public PackagingTest {
 protected:
  static bool HasKey(const std::u16string& key) { return SettingsMap.contains(key); }
};

TEST_F(PublishDriverPasswordsTest, EachPlatformSignsWithItsOwnPassword) {
  for (const PublishTarget target : {PublishTargetApk, PublishTargetExe, PublishTargetIpa}) {
    SettingsSet(keys::kCertificatePassword, u"droid");
    SettingsSet(keys::kIpaCertificatePassword, u"pod");
    Publish(target);
  }

  EXPECT_THAT(
      processes.CommandLines(),
      ElementsAre(std::u16string(kToolHead) +
                      u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 "
                      u"-keystore \"C:/k/my.p12\" -storepass \"droid\" \"C:/m/Game.apk\" "
                      u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ",
                  std::u16string(kToolHead) +
                      u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 "
                      u"-keystore \"C:/k/my.p12\" -storepass \"droid\" -target native "
                      u"\"C:/m/Game.exe\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ",
                  std::u16string(kToolHead) +
                      u" -package -target ipa-test -provisioning-profile "
                      u"\"C:/k/store.mobileprovision\"  -storetype PKCS12 -keystore "
                      u"\"C:/k/dist.p12\" -storepass \"pod\" \"C:/m/Game.ipa\" "
                      u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" "));
}

TEST_F(PublishDriverPasswordsTest, CancellingTheQuestionStopsTheRunAndKeepsThePasswords) {
  IncludeMissingFiles(1);
  frontEnd.answer = kIdCancel;

  ExpectStop();

  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"PASSWORD");
  EXPECT_EQ(SettingsGet(keys::kIpaCertificatePassword), u"PASSWORD");
}

TEST_F(PublishDriverPasswordsTest, AFailingEarlyPhaseKeepsThePassword) {
  SettingsSet(keys::kIpaProvisioningProfile, u"");

  ExpectStop(PublishTargetIpa);

  EXPECT_EQ(SettingsGet(keys::kIpaCertificatePassword), u"PASSWORD");
}

TEST_F(PublishDriverPasswordsTest, EveryRunOfTheToolForgetsBothPasswords) {
  for (const PublishTarget target : {PublishTargetApk, PublishTargetIpa, PublishTargetExe}) {
    SettingsSet(keys::kCertificatePassword, u"a");
    SettingsSet(keys::kIpaCertificatePassword, u"b");

    Publish(target);

    EXPECT_FALSE(HasKey(keys::kCertificatePassword));
    EXPECT_FALSE(HasKey(keys::kIpaCertificatePassword));
  }
}

TEST_F(PublishDriverPasswordsTest, ARunThatFailedInTheToolForgetsPasswordsToo) {
  PlayTool(1, "bad");

  EXPECT_EQ(Publish(), 0);

  EXPECT_FALSE(HasKey(keys::kCertificatePassword));
}

TEST_F(PublishDriverPasswordsTest, EachRememberMarkKeepsItsOwnPassword) {
  SettingsSet(keys::kRememberPassword, u"true");
  SettingsSet(keys::kIpaRememberPassword, u"True");

  Publish();

  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"PASSWORD");
  EXPECT_FALSE(HasKey(keys::kIpaCertificatePassword));
}

TEST_F(PublishDriverPasswordsTest, TheOtherRememberMarkKeepsTheOtherPassword) {
  SettingsSet(keys::kIpaRememberPassword, u"true");

  Publish();

  EXPECT_FALSE(HasKey(keys::kCertificatePassword));
  EXPECT_EQ(SettingsGet(keys::kIpaCertificatePassword), u"PASSWORD");
}

}  // namespace
}  // namespace qutav::test
