// The table of targets: the whole line that the tool is started with, for each of its rows.

#include "PackagingTest.h"
#include "packaging/DeviceBridge.h"

namespace qutav::test {
namespace {

constexpr char16_t kApkContent[] =
    u"\"C:/m/Game.apk\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ";
constexpr char16_t kExeContent[] =
    u"\"C:/m/Game.exe\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ";
constexpr char16_t kIpaContent[] =
    u"\"C:/m/Game.ipa\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ";

class PackagerCommandTargetsTest : public PackagingTest {
 protected:
  PackagerCommandTargetsTest() {
    SettingsSet(keys::kRuntimeKit, u"TAV20.0");
    SettingsSet(keys::kMarketUrl, u"https://market.example/get?a=1");
    SettingsSet(keys::kHostAddress, u"Wi-Fi <10.0.0.2>");
    PutDescriptor(
        "<name>Game</name><android><manifestAdditions><![CDATA[<manifest>"
        "<uses-permission android:name=\"android.permission.INTERNET\"/>"
        "</manifest>]]></manifestAdditions></android>");
  }

  std::u16string Head() const { return kToolHead; }
};

TEST_F(PackagerCommandTargetsTest, AReleaseWithoutTheRuntimeIsAnApk) {
  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            Head() +
                u" -package -target apk -tavDownloadURL https://market.example/get?a=1 -arch armv7"
                u" -storetype PKCS12 -keystore \"C:/k/my.p12\" -storepass \"PASSWORD\" " +
                kApkContent);
}

TEST_F(PackagerCommandTargetsTest, AReleaseWithTheRuntimeIsACaptiveApkWithoutAMarket) {
  SettingsSet(keys::kRuntimeType, u"embed");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            Head() +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore"
                u" \"C:/k/my.p12\" -storepass \"PASSWORD\" " +
                kApkContent);
}

TEST_F(PackagerCommandTargetsTest, AReleaseForTheEmulatorIsAnEmulatorApk) {
  SettingsSet(keys::kPublishType, u"release-emulator");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            Head() +
                u" -package -target apk-emulator -tavDownloadURL https://market.example/get?a=1"
                u" -arch armv7 -storetype PKCS12 -keystore \"C:/k/my.p12\" -storepass"
                u" \"PASSWORD\" " +
                kApkContent);
}

TEST_F(PackagerCommandTargetsTest, ADebugPublishConnectsBehindTwoBlanks) {
  SettingsSet(keys::kPublishType, u"debug");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            Head() +
                u" -package -target apk-debug  -connect 10.0.0.2 -tavDownloadURL"
                u" https://market.example/get?a=1 -arch armv7 -storetype PKCS12 -keystore"
                u" \"C:/k/my.p12\" -storepass \"PASSWORD\" " +
                kApkContent);
}

TEST_F(PackagerCommandTargetsTest, APublishWithoutATypeConnectsAsADebugPublishDoes) {
  SettingsSet(keys::kPublishType, u"");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            Head() +
                u" -package -target apk-debug  -connect 10.0.0.2 -tavDownloadURL"
                u" https://market.example/get?a=1 -arch armv7 -storetype PKCS12 -keystore"
                u" \"C:/k/my.p12\" -storepass \"PASSWORD\" " +
                kApkContent);
}

TEST_F(PackagerCommandTargetsTest, DebuggingOnADeviceListensOnTheDefaultPort) {
  SettingsSet(keys::kDebugOnDevice, u"true");

  EXPECT_EQ(PublishedCommand(PublishTargetExe),
            Head() +
                u" -package -target apk-debug -listen 7936 -tavDownloadURL"
                u" https://market.example/get?a=1 -arch armv7 -storetype PKCS12 -keystore"
                u" \"C:/k/my.p12\" -storepass \"PASSWORD\" -target native " +
                kExeContent);
}

TEST_F(PackagerCommandTargetsTest, APreparedPackageHasNoTargetAndNoKeystore) {
  SetRegistryValue(u"DigitalSign", u"prepare");

  EXPECT_EQ(PublishedCommand(PublishTargetApk), Head() + u" -prepare " + kApkContent);
}

TEST_F(PackagerCommandTargetsTest, ANativeInstallerNamesItsTargetBehindAnApkRow) {
  EXPECT_EQ(PublishedCommand(PublishTargetExe),
            Head() +
                u" -package -target apk -tavDownloadURL https://market.example/get?a=1 -arch armv7"
                u" -storetype PKCS12 -keystore \"C:/k/my.p12\" -storepass \"PASSWORD\" "
                u"-target native " +
                kExeContent);
}

TEST_F(PackagerCommandTargetsTest, ANativeInstallerWithTheRuntimeStandsBehindTheCaptiveRow) {
  SettingsSet(keys::kRuntimeType, u"embed");

  EXPECT_EQ(PublishedCommand(PublishTargetExe),
            Head() +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore"
                u" \"C:/k/my.p12\" -storepass \"PASSWORD\" -target native " +
                kExeContent);
}

TEST_F(PackagerCommandTargetsTest, ANativeInstallerForTheEmulatorStandsBehindTheEmulatorRow) {
  SettingsSet(keys::kPublishType, u"release-emulator");

  EXPECT_EQ(PublishedCommand(PublishTargetExe),
            Head() +
                u" -package -target apk-emulator -tavDownloadURL https://market.example/get?a=1"
                u" -arch armv7 -storetype PKCS12 -keystore \"C:/k/my.p12\" -storepass"
                u" \"PASSWORD\" -target native " +
                kExeContent);
}

TEST_F(PackagerCommandTargetsTest, ANativeInstallerForDebuggingStandsBehindTheConnectingRow) {
  SettingsSet(keys::kPublishType, u"debug");

  EXPECT_EQ(PublishedCommand(PublishTargetExe),
            Head() +
                u" -package -target apk-debug  -connect 10.0.0.2 -tavDownloadURL"
                u" https://market.example/get?a=1 -arch armv7 -storetype PKCS12 -keystore"
                u" \"C:/k/my.p12\" -storepass \"PASSWORD\" -target native " +
                kExeContent);
}

TEST_F(PackagerCommandTargetsTest, AnIosPackageWithoutATypeIsForTesting) {
  EXPECT_EQ(PublishedCommand(PublishTargetIpa),
            Head() +
                u" -package -target ipa-test -provisioning-profile"
                u" \"C:/k/store.mobileprovision\"  -storetype PKCS12 -keystore"
                u" \"C:/k/dist.p12\" -storepass \"PASSWORD\" " +
                kIpaContent);
}

TEST_F(PackagerCommandTargetsTest, AnIosPackageOfAnUnknownTypeIsForTesting) {
  SettingsSet(keys::kIpaOption, u"Store");

  EXPECT_EQ(PublishedCommand(PublishTargetIpa),
            Head() +
                u" -package -target ipa-test -provisioning-profile"
                u" \"C:/k/store.mobileprovision\"  -storetype PKCS12 -keystore"
                u" \"C:/k/dist.p12\" -storepass \"PASSWORD\" " +
                kIpaContent);
}

TEST_F(PackagerCommandTargetsTest, AnIosDebugPackageConnects) {
  SettingsSet(keys::kIpaOption, u"debug");

  EXPECT_EQ(PublishedCommand(PublishTargetIpa),
            Head() +
                u" -package -target ipa-debug -connect -provisioning-profile"
                u" \"C:/k/store.mobileprovision\"  -storetype PKCS12 -keystore"
                u" \"C:/k/dist.p12\" -storepass \"PASSWORD\" " +
                kIpaContent);
}

TEST_F(PackagerCommandTargetsTest, AnIosAdHocPackageNamesItsTarget) {
  SettingsSet(keys::kIpaOption, u"adhoc");

  EXPECT_EQ(PublishedCommand(PublishTargetIpa),
            Head() +
                u" -package -target ipa-ad-hoc -provisioning-profile"
                u" \"C:/k/store.mobileprovision\"  -storetype PKCS12 -keystore"
                u" \"C:/k/dist.p12\" -storepass \"PASSWORD\" " +
                kIpaContent);
}

TEST_F(PackagerCommandTargetsTest, AnIosStorePackageNamesItsTarget) {
  SettingsSet(keys::kIpaOption, u"store");

  EXPECT_EQ(PublishedCommand(PublishTargetIpa),
            Head() +
                u" -package -target ipa-app-store -provisioning-profile"
                u" \"C:/k/store.mobileprovision\"  -storetype PKCS12 -keystore"
                u" \"C:/k/dist.p12\" -storepass \"PASSWORD\" " +
                kIpaContent);
}

TEST_F(PackagerCommandTargetsTest, AnEmbeddedRuntimeWithAnIconAndAnIncludedFileMakesTheWholeLine) {
  SettingsSet(keys::kRuntimeKit, u"TAV26.0");
  PutDescriptor("<name>Game</name><icon><image48x48>icons/icon48.png</image48x48></icon>");
  files.Put(u"C:/m/icons/icon48.png");
  files.Put(u"C:/m/data/levels.xml");
  SettingsSet(keys::kIncludedCount, u"1");
  SettingsSet(u"com.tav.moresh.included.item0", u"data/levels.xml");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            Head() +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" \"C:/m/Game-app.xml\" "
                u"-C \"C:/m/\" \"Game.qmv\" \"icons/icon48.png\"  -C \"C:/m/\" "
                u"\"data/levels.xml\" ");
}

TEST_F(PackagerCommandTargetsTest, DebuggingOnADeviceWithAJksKeystoreMakesTheWholeLine) {
  SettingsSet(keys::kRuntimeKit, u"TAV33.0");
  SettingsSet(keys::kDebugOnDevice, u"true");
  SettingsSet(keys::kProcessorType, u"armv8");
  SettingsSet(keys::kCertificatePath, u"C:/k/my.jks");
  // A run on a device needs one; the listing is the tool's at this level.
  DebugDeviceSerial = u"A";
  processes.play = [](const std::u16string& line) {
    return PlayedAnswer{line.ends_with(u"-devices -platform android") ? "A\tdevice\n" : "", 0};
  };

  PublishDriver(PublishTargetApk, false);

  EXPECT_THAT(
      processes.CommandLines(),
      ::testing::Contains(
          Head() +
          u" -package -target apk-debug -listen 7936 -arch armv8 -storetype JKS -keystore "
          u"\"C:/k/my.jks\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" \"C:/m/Game-app.xml\" "
          u"-C \"C:/m/\" \"Game.qmv\" "));
}

TEST_F(PackagerCommandTargetsTest, AStorePackageMakesTheWholeLine) {
  SettingsSet(keys::kRuntimeKit, u"TAV26.0");
  SettingsSet(keys::kIpaOption, u"store");

  EXPECT_EQ(PublishedCommand(PublishTargetIpa),
            Head() +
                u" -package -target ipa-app-store -provisioning-profile "
                u"\"C:/k/store.mobileprovision\"  -storetype PKCS12 -keystore \"C:/k/dist.p12\" "
                u"-storepass \"PASSWORD\" \"C:/m/Game.ipa\" \"C:/m/Game-app.xml\" -C \"C:/m/\" "
                u"\"Game.qmv\" ");
}

}  // namespace
}  // namespace qutav::test
