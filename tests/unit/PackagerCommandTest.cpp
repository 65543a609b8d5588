#include "PackagingTest.h"
#include "packaging/PackagerCommand.h"

namespace qutav::test {
namespace {

class PackagerCommandTest : public PackagingTest {
 protected:
  PackagerCommandTest() { inputs.password = u"pw"; }

  std::u16string Signing() const { return TargetAndSigning(inputs); }
  void SetPublishType(const std::u16string& type) { SettingsSet(keys::kPublishType, type); }
  void SetKeystore(const std::u16string& path) { SettingsSet(keys::kCertificatePath, path); }
  void SetHost(const std::u16string& address) {
    SetPublishType(u"debug");
    SettingsSet(keys::kHostAddress, address);
  }

  PackagerInputs inputs;
};

constexpr char16_t kBehindTarget[] =
    u" -arch armv7 -storetype PKCS12 -keystore \"C:/k/my.p12\" -storepass \"pw\" ";

std::u16string WithTail(const std::u16string& target) { return target + kBehindTarget; }

TEST_F(PackagerCommandTest, TheHeadNamesLauncherAndToolAndEndsInABlank) {
  EXPECT_EQ(PackagerHead(),
            u"\"C:/Common/Zenvoka/Zenvoka Kestrow 2020/jre/bin/java.exe\" -jar "
            u"\"C:/sdk/lib/KOB.jar\" ");
}

TEST_F(PackagerCommandTest, WithoutAChosenSdkTheToolIsTheKitsBelowTheLaunchPath) {
  SettingsSet(keys::kSdkPath, u"");
  SettingsSet(keys::kLaunchPath, u"C:/host/");

  EXPECT_EQ(PackagerHead(),
            u"\"C:/Common/Zenvoka/Zenvoka Kestrow 2020/jre/bin/java.exe\" -jar "
            u"\"C:/host/TAV26.0/lib/KOB.jar\" ");
}

TEST_F(PackagerCommandTest, TheHeadKeepsTheSlashesOfTheSdksPath) {
  SettingsSet(keys::kSdkPath, u"D:\\my sdk");

  EXPECT_EQ(PackagerHead(),
            u"\"C:/Common/Zenvoka/Zenvoka Kestrow 2020/jre/bin/java.exe\" -jar "
            u"\"D:\\my sdk/lib/KOB.jar\" ");
}

TEST_F(PackagerCommandTest, TheHeadTakesTheLaunchersNameOfTheSystem) {
  processes.suffix = u"";

  EXPECT_EQ(PackagerHead(),
            u"\"C:/Common/Zenvoka/Zenvoka Kestrow 2020/jre/bin/java\" -jar "
            u"\"C:/sdk/lib/KOB.jar\" ");
}

TEST_F(PackagerCommandTest, ANativeInstallerIsSignedAlsoWhenPreparing) {
  inputs.target = PublishTargetExe;
  inputs.digitalSign = u"prepare";

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk") + u"-target native ");
}

TEST_F(PackagerCommandTest, AnIosPackageIsSignedAlsoWhenPreparing) {
  inputs.target = PublishTargetIpa;
  inputs.digitalSign = u"prepare";

  EXPECT_EQ(Signing(),
            u" -package -target ipa-test -provisioning-profile \"C:/k/store.mobileprovision\" "
            u" -storetype PKCS12 -keystore \"C:/k/dist.p12\" -storepass \"pw\" ");
}

TEST_F(PackagerCommandTest, OnlyTheExactTextPrepareLeavesTheSigningOut) {
  inputs.digitalSign = u"Prepare";

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk"));
}

TEST_F(PackagerCommandTest, AKeystoreWhoseNameEndsInJksInAnyCaseIsOfTypeJks) {
  for (const char16_t* keystore : {u"MY.JKS", u"C:/k/my.jks", u".jKs"}) {
    SetKeystore(keystore);

    EXPECT_EQ(Signing(), std::u16string(u" -package -target apk -arch armv7 -storetype JKS") +
                             u" -keystore \"" + keystore + u"\" -storepass \"pw\" ");
  }
}

TEST_F(PackagerCommandTest, AKeystoreNameShorterThanFourCharactersIsOfTypePkcs12) {
  for (const char16_t* keystore : {u"jks", u"a", u""}) {
    SetKeystore(keystore);

    EXPECT_EQ(Signing(), std::u16string(u" -package -target apk -arch armv7 -storetype PKCS12") +
                             u" -keystore \"" + keystore + u"\" -storepass \"pw\" ");
  }
}

TEST_F(PackagerCommandTest, AnyOtherKeystoreNameIsOfTypePkcs12) {
  for (const char16_t* keystore : {u"my.pfx", u"my.jks.bak", u"myjks", u"C:/a.jks/my"}) {
    SetKeystore(keystore);

    EXPECT_EQ(Signing(), std::u16string(u" -package -target apk -arch armv7 -storetype PKCS12") +
                             u" -keystore \"" + keystore + u"\" -storepass \"pw\" ");
  }
}

TEST_F(PackagerCommandTest, ThePublishTypeDebuginterpreterWritesNoTargetClause) {
  SetPublishType(u"debuginterpreter");

  EXPECT_EQ(Signing(), WithTail(u""));
}

TEST_F(PackagerCommandTest, AnUnknownPublishTypeKeepsTheClausesBehindTheTarget) {
  SetPublishType(u"Release");
  SettingsSet(keys::kMarketUrl, u"http://market");

  EXPECT_EQ(Signing(), WithTail(u" -tavDownloadURL http://market"));
}

TEST_F(PackagerCommandTest, AnAddressBehindAnInterfacesNameIsConnectedTo) {
  SetHost(u"Wi-Fi <10.0.0.2>");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug  -connect 10.0.0.2"));
}

TEST_F(PackagerCommandTest, AnAddressThatStartsWithItsBracketIsNotConnectedTo) {
  SetHost(u"<10.0.0.2>");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug  -connect"));
}

TEST_F(PackagerCommandTest, TheDefaultHostIsFoundByTheToolItself) {
  SetHost(u"Default");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug  -connect"));
}

TEST_F(PackagerCommandTest, TheDefaultHostIsTheOneOfTheInterfaceLanguage) {
  language.texts[8150] = u"Standard <1.2.3.4>";
  SetHost(u"Standard <1.2.3.4>");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug  -connect"));
}

TEST_F(PackagerCommandTest, WithoutAHostTheToolFindsItByItself) {
  SetHost(u"");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug  -connect"));
}

TEST_F(PackagerCommandTest, AHostWithoutAPairOfBracketsInOrderIsNotConnectedTo) {
  for (const char16_t* address : {u"10.0.0.2", u"Wi-Fi 10.0.0.2>", u"Wi-Fi <10.0.0.2", u"a>b<c>"}) {
    SetHost(address);

    EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug  -connect"));
  }
}

TEST_F(PackagerCommandTest, EmptyBracketsGiveABlankAndNoAddress) {
  SetHost(u"a<>");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug  -connect "));
}

TEST_F(PackagerCommandTest, ListeningTakesThePortOfTheRegistry) {
  SettingsSet(keys::kDebugOnDevice, u"true");
  SetRegistryValue(u"usbPort", u"8000");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug -listen 8000"));
}

TEST_F(PackagerCommandTest, DebuggingOnADeviceComesBeforeThePublishType) {
  SettingsSet(keys::kDebugOnDevice, u"true");

  for (const char16_t* type : {u"release", u"debug", u"release-emulator", u"other"}) {
    SetPublishType(type);
    EXPECT_EQ(Signing(), WithTail(u" -package -target apk-debug -listen 7936"));
  }
}

TEST_F(PackagerCommandTest, AMarketIsNamedForDebugPackagesToo) {
  SettingsSet(keys::kMarketUrl, u"http://market");
  SettingsSet(keys::kDebugOnDevice, u"true");

  EXPECT_EQ(Signing(),
            WithTail(u" -package -target apk-debug -listen 7936 -tavDownloadURL http://market"));
}

TEST_F(PackagerCommandTest, AnEmbeddedRuntimeNeedsNoMarketWhateverThePublishType) {
  inputs.runtimeType = u"embed";
  SettingsSet(keys::kMarketUrl, u"http://market");
  SetPublishType(u"release-emulator");

  EXPECT_EQ(Signing(), WithTail(u" -package -target apk-emulator"));
}

TEST_F(PackagerCommandTest, TheProcessorIsNamedFromTheRuntimeLevel14On) {
  SettingsSet(keys::kRuntimeKit, u"TAV14.0");

  for (const auto& [type, option] : std::map<std::u16string, std::u16string>{
           {u"x86", u"x86"}, {u"armv8", u"armv8"}, {u"", u"armv7"}, {u"X86", u"armv7"}}) {
    SettingsSet(keys::kProcessorType, type);
    EXPECT_EQ(Signing(), u" -package -target apk -arch " + option +
                             u" -storetype PKCS12 -keystore \"C:/k/my.p12\" -storepass \"pw\" ");
  }
}

TEST_F(PackagerCommandTest, BelowTheRuntimeLevel14NoProcessorIsNamed) {
  SettingsSet(keys::kRuntimeKit, u"TAV13.9");
  SettingsSet(keys::kProcessorType, u"x86");

  EXPECT_EQ(Signing(),
            u" -package -target apk -storetype PKCS12 -keystore \"C:/k/my.p12\" -storepass"
            u" \"pw\" ");
}

TEST_F(PackagerCommandTest, ValuesAreNotEscaped) {
  inputs.password = u"a\" b\\";
  SetKeystore(u"C:\\my keys\\k.p12");

  EXPECT_EQ(Signing(),
            u" -package -target apk -arch armv7 -storetype PKCS12 -keystore"
            u" \"C:\\my keys\\k.p12\" -storepass \"a\" b\\\" ");
}

TEST_F(PackagerCommandTest, ThePackageIsMadeOfDescriptorAndMovie) {
  EXPECT_EQ(PackagedContent(u"C:/out/G.apk", {}),
            u"\"C:/out/G.apk\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ");
}

TEST_F(PackagerCommandTest, ACustomDescriptorTakesThePlaceOfTheMoviesOwn) {
  SettingsSet(keys::kUseCustomDescriptor, u"true");
  SettingsSet(keys::kCustomDescriptorPath, u"D:\\own.xml");

  EXPECT_EQ(PackagedContent(u"G.apk", {}), u"\"G.apk\" \"D:\\own.xml\" -C \"C:/m/\" \"Game.qmv\" ");
}

TEST_F(PackagerCommandTest, ACustomDescriptorNeedsBothItsMarkAndItsPath) {
  const std::u16string own = u"\"G.apk\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ";
  SettingsSet(keys::kUseCustomDescriptor, u"true");
  EXPECT_EQ(PackagedContent(u"G.apk", {}), own);

  SettingsSet(keys::kUseCustomDescriptor, u"false");
  SettingsSet(keys::kCustomDescriptorPath, u"D:\\own.xml");
  EXPECT_EQ(PackagedContent(u"G.apk", {}), own);
}

TEST_F(PackagerCommandTest, TwoImagesWithTheSameEntryAppearOnce) {
  EXPECT_EQ(PackagedContent(u"G.apk", {u"b.png", u"a.png", u"b.png"}),
            u"\"G.apk\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" \"b.png\" \"a.png\" ");
}

TEST_F(PackagerCommandTest, ImagesAreComparedBeforeTheirBlanksAreDecoded) {
  EXPECT_EQ(PackagedContent(u"G.apk", {u"my%20icon.png", u"my icon.png", u"MY%20ICON.png"}),
            u"\"G.apk\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" \"my icon.png\" "
            u"\"my icon.png\" \"MY ICON.png\" ");
}

TEST_F(PackagerCommandTest, AStrayPercentSignOfAnImageIsDropped) {
  EXPECT_EQ(PackagedContent(u"G.apk", {u"100%.png"}),
            u"\"G.apk\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" \"100.png\" ");
}

TEST_F(PackagerCommandTest, TheExtensionFolderHasForwardSlashesAndOneAtItsEnd) {
  EXPECT_EQ(ExtensionOption(u"C:\\temp\\Game_ZUX_Cache\\"),
            u" -extdir \"C:/temp/Game_ZUX_Cache/\" ");
  EXPECT_EQ(ExtensionOption(u"C:/temp/cache"), u" -extdir \"C:/temp/cache/\" ");
}

}  // namespace
}  // namespace qutav::test
