#include "PackagingTest.h"
#include "packaging/PackagerCommand.h"

namespace qutav::test {
namespace {

class PackageDestinationTest : public PackagingTest {
 protected:
  static void SetDestination(const std::u16string& path) {
    SettingsSet(keys::kTavDestination, path);
  }
  static std::optional<std::u16string> Apk(const std::u16string& applicationName = u"My App") {
    return PackageDestination(PublishTargetApk, applicationName);
  }
  static std::optional<std::u16string> Ipa() {
    return PackageDestination(PublishTargetIpa, u"My App");
  }
};

TEST_F(PackageDestinationTest, AnIosPackageIsNamedAfterTheApplicationAndStoredAsAnApk) {
  EXPECT_EQ(Ipa(), u"C:/m/My App.ipa");

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"My App.apk");
  EXPECT_EQ(SettingsGet(keys::kIpaDestination), u"");
}

TEST_F(PackageDestinationTest, AnAndroidPackageIsNamedAfterTheApplication) {
  EXPECT_EQ(Apk(), u"C:/m/My App.apk");

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"My App.apk");
}

TEST_F(PackageDestinationTest, AnInstallerIsNamedAfterTheApplication) {
  EXPECT_EQ(PackageDestination(PublishTargetExe, u"My App"), u"C:/m/My App.exe");

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"My App.exe");
}

TEST_F(PackageDestinationTest, AnApplicationWithoutANameGivesThePackageTheMoviesName) {
  EXPECT_EQ(Apk(u""), u"C:/m/Game.apk");

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"Game.apk");
}

TEST_F(PackageDestinationTest, AnApplicationNameWithADotKeepsAllOfIt) {
  EXPECT_EQ(Apk(u"My.App"), u"C:/m/My.App.apk");
}

TEST_F(PackageDestinationTest, AStoredDestinationIsTakenAndStaysAsItIs) {
  SetDestination(u"C:/m/Other.apk");

  EXPECT_EQ(Apk(), u"C:/m/Other.apk");

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"C:/m/Other.apk");
}

TEST_F(PackageDestinationTest, EachPlatformHasItsOwnDestination) {
  SetDestination(u"C:/m/Droid.apk");
  SettingsSet(keys::kIpaDestination, u"C:/m/Pod.ipa");

  EXPECT_EQ(Apk(), u"C:/m/Droid.apk");
  EXPECT_EQ(Ipa(), u"C:/m/Pod.ipa");
  EXPECT_EQ(PackageDestination(PublishTargetExe, u""), u"C:/m/Droid.exe");
}

TEST_F(PackageDestinationTest, ADestinationInAMissingFolderCannotBeUsed) {
  SetDestination(u"out/Game");

  EXPECT_EQ(Apk(), std::nullopt);
}

TEST_F(PackageDestinationTest, ABareNameIsPlacedInTheMoviesFolder) {
  SetDestination(u"Game");

  EXPECT_EQ(Apk(), u"C:/m/Game.apk");
}

TEST_F(PackageDestinationTest, ABareNameThatExistsWhereTheHostStandsStaysThere) {
  SetDestination(u"Game");
  files.Put(u"C:/current/Game.apk");

  EXPECT_EQ(Apk(), u"Game.apk");
}

TEST_F(PackageDestinationTest, TheExtensionIsSoughtInTheWholePathFoldersIncluded) {
  SettingsSet(keys::kIpaDestination, u"C:/a.b/Game");
  files.PutFolder(u"C:/a.b");

  EXPECT_EQ(Ipa(), u"C:/a.ipa");
}

TEST_F(PackageDestinationTest, AnotherPlatformsExtensionIsReplaced) {
  SetDestination(u"C:/m/Game.tavi");

  EXPECT_EQ(Apk(), u"C:/m/Game.apk");
}

TEST_F(PackageDestinationTest, ADestinationWithBackslashesInAnExistingFolderIsUsed) {
  SetDestination(u"C:\\m\\Game.apk");

  EXPECT_EQ(Apk(), u"C:\\m\\Game.apk");
}

TEST_F(PackageDestinationTest, AnExistingFileOrFolderIsUsable) {
  EXPECT_TRUE(DestinationUsable(u"C:/m/Game.qmv"));
  EXPECT_TRUE(DestinationUsable(u"C:/m"));
}

TEST_F(PackageDestinationTest, AFileInAnExistingFolderIsUsable) {
  EXPECT_TRUE(DestinationUsable(u"C:/m/New.apk"));
  EXPECT_TRUE(DestinationUsable(u"C:\\m\\New.apk"));
  EXPECT_FALSE(DestinationUsable(u"C:/gone/New.apk"));
  EXPECT_FALSE(DestinationUsable(u"C:\\gone\\New.apk"));
}

TEST_F(PackageDestinationTest, TheLastForwardSlashCountsBeforeABackslashBehindIt) {
  EXPECT_TRUE(DestinationUsable(u"C:/m/gone\\New.apk"));
}

TEST_F(PackageDestinationTest, ABareNameIsUsableOnlyWhenItExists) {
  EXPECT_FALSE(DestinationUsable(u"New.apk"));
  EXPECT_FALSE(DestinationUsable(u""));
}

TEST_F(PackageDestinationTest, AnIosPackageWithoutADestinationOverwritesTheAndroidOne) {
  SetDestination(u"C:/m/Other.apk");

  EXPECT_EQ(Ipa(), u"C:/m/My App.ipa");

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"My App.apk");
}

}  // namespace
}  // namespace qutav::test
