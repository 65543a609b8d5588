// The phases of the driver and what each of them tells the user.

#include <functional>

#include "PackagingTest.h"
#include "packaging/PublishDriver.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kInternet[] =
    "<android><manifestAdditions><![CDATA[<manifest><uses-permission "
    "android:name=\"android.permission.INTERNET\"/></manifest>]]></manifestAdditions></android>";

class PublishDriverTest : public PackagingTest {};

TEST_F(PublishDriverTest, EachTargetHasItsOwnMessageOfSuccess) {
  EXPECT_EQ(Publish(PublishTargetApk), 1);
  EXPECT_EQ(Publish(PublishTargetIpa), 1);
  EXPECT_EQ(Publish(PublishTargetExe), 1);

  EXPECT_THAT(frontEnd.Texts(),
              ElementsAre(u"APK file has been created.", u"iPhone file has been created.",
                          u"Windows installer file has been created."));
}

TEST_F(PublishDriverTest, ASuccessIsToldInAnInformationBox) {
  EXPECT_EQ(Publish(), 1);

  ExpectInformation(u"APK file has been created.");
}

TEST_F(PublishDriverTest, APreparedPackageGetsTheMessageOfAnAndroidPackage) {
  SetRegistryValue(u"DigitalSign", u"prepare");

  EXPECT_EQ(Publish(), 1);

  ExpectInformation(u"APK file has been created.");
}

TEST_F(PublishDriverTest, WithoutAChosenDeviceTheTextOfTheCheckIsShown) {
  SettingsSet(keys::kAdbOption, u"install");

  ExpectStop();

  ExpectInformation(u"No device selected. Select at least one device to continue.");
}

TEST_F(PublishDriverTest, DevicesAreCheckedForAndroidOnly) {
  SettingsSet(keys::kDebugOnDevice, u"true");

  EXPECT_EQ(Publish(PublishTargetExe), 1);
  EXPECT_EQ(Publish(PublishTargetIpa), 1);

  EXPECT_EQ(processes.CommandLines().size(), 2u);
}

TEST_F(PublishDriverTest, FromTheRuntimeLevel26OnTheRuntimeIsEmbeddedAndNoMarketNamed) {
  SettingsSet(keys::kRuntimeType, u"market");
  SettingsSet(keys::kMarketUrl, u"http://market");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            std::u16string(kToolHead) +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" "
                u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ");
  EXPECT_EQ(SettingsGet(keys::kRuntimeType), u"market");
}

TEST_F(PublishDriverTest, BelowTheRuntimeLevel26TheRuntimeTypeHolds) {
  SettingsSet(keys::kRuntimeKit, u"TAV25.9");
  SettingsSet(keys::kMarketUrl, u"http://market");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            std::u16string(kToolHead) +
                u" -package -target apk -tavDownloadURL http://market -arch armv7 -storetype "
                u"PKCS12 -keystore \"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" "
                u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ");
}

constexpr char16_t kMovieMissing[] =
    u"The QMV file does not exist. Use the Test Movie or Export Movie command first to create the "
    u"QMV file before publishing the TAV file.";

TEST_F(PublishDriverTest, AMissingMovieStopsTheRun) {
  files.Delete(u"C:/m/Game.qmv");

  ExpectStop();

  ExpectInformation(kMovieMissing);
}

TEST_F(PublishDriverTest, WithoutAFolderTheMovieIsMissing) {
  files.Put(u"C:/current/Game.qmv");
  SettingsSet(keys::kMovieFolder, u"");

  ExpectStop();

  ExpectInformation(kMovieMissing);
}

TEST_F(PublishDriverTest, WithoutABaseNameTheMovieIsMissing) {
  files.Put(u"C:/m/.qmv");
  SettingsSet(keys::kMovieBaseName, u"");

  ExpectStop();

  ExpectInformation(kMovieMissing);
}

TEST_F(PublishDriverTest, AMissingDescriptorIsGenerated) {
  files.Delete(u"C:/m/Game-app.xml");

  EXPECT_EQ(Publish(), 1);

  EXPECT_TRUE(files.HasFile(u"C:/m/Game-app.xml"));
}

TEST_F(PublishDriverTest, ADescriptorThatCannotBeParsedStopsTheRun) {
  files.Put(u"C:/m/Game-app.xml", "<other/>");

  ExpectStop();

  ExpectWarning(u"Application descriptor file cannot be parsed.");
}

TEST_F(PublishDriverTest, TheDescriptorIsReadFromTheFileEachTime) {
  Publish();
  PutDescriptor("<other>Game</other>");

  EXPECT_EQ(Publish(), 0);

  EXPECT_EQ(frontEnd.Texts().back(), u"The application name is missing.");
}

TEST_F(PublishDriverTest, ADescriptorWithoutANameStopsTheRun) {
  PutDescriptor("<id>com.game</id>");

  ExpectStop();

  ExpectInformation(u"The application name is missing.");
}

TEST_F(PublishDriverTest, AnEmptyNameGivesThePackageTheMoviesName) {
  PutDescriptor("<name></name>");

  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"Game.apk");
}

TEST_F(PublishDriverTest, TheNameOfTheDescriptorNamesThePackage) {
  PutDescriptor("<name> My App </name>");

  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"My App.apk");
}

constexpr char16_t kPermissionNeeded[] =
    u"Debugging on device requires the internet permission enabled under the permissions tab in "
    u"the TAV for Android settings.";

TEST_F(PublishDriverTest, ADebugPublishNeedsTheInternetPermission) {
  SettingsSet(keys::kPublishType, u"debug");

  ExpectStop();

  ExpectWarning(kPermissionNeeded);
}

TEST_F(PublishDriverTest, AStaleDebugTypeStopsAnIosRunToo) {
  SettingsSet(keys::kPublishType, u"debug");

  ExpectStop(PublishTargetIpa);

  ExpectWarning(kPermissionNeeded);
}

TEST_F(PublishDriverTest, ADebugPublishWithTheInternetPermissionGoesOn) {
  SettingsSet(keys::kPublishType, u"debug");
  PutDescriptor(std::string("<name>Game</name>") + kInternet);

  EXPECT_EQ(Publish(), 1);
}

TEST_F(PublishDriverTest, MissingIconsAreListedWithTheirBlanks) {
  PutDescriptor(
      "<name>Game</name><icon><image36x36>a%20b.png</image36x36>"
      "<image48x48>here.png</image48x48><image16x16>sub/c.png</image16x16></icon>");
  files.Put(u"C:/m/here.png");

  ExpectStop();

  ExpectWarning(u"Icon file is missing.\na b.png\nsub/c.png");
}

TEST_F(PublishDriverTest, AnIconWithABlankInItsNameIsFoundAndPackaged) {
  PutDescriptor("<name>Game</name><icon><image36x36>a%20b.png</image36x36></icon>");
  files.Put(u"C:/m/a b.png");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            std::u16string(kToolHead) +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" "
                u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" \"a b.png\" ");
}

TEST_F(PublishDriverTest, AnIosRunNeedsAProvisioningProfile) {
  SettingsSet(keys::kIpaProvisioningProfile, u"");

  ExpectStop(PublishTargetIpa);

  ExpectWarning(u"A provisioning profile must be selected.");
}

TEST_F(PublishDriverTest, AnAndroidRunNeedsNoProvisioningProfile) {
  SettingsSet(keys::kIpaProvisioningProfile, u"");

  EXPECT_EQ(Publish(PublishTargetApk), 1);
}

TEST_F(PublishDriverTest, ADestinationThatCannotBeUsedStopsTheRun) {
  SettingsSet(keys::kTavDestination, u"out/Game");

  ExpectStop();

  ExpectWarning(u"Error creating files.\n\nCould not write to the destination directory.");
}

TEST_F(PublishDriverTest, AMissingIncludedFileIsAskedAbout) {
  IncludeMissingFiles(1);

  EXPECT_EQ(Publish(), 1);

  ASSERT_EQ(frontEnd.messages.size(), 2u);
  EXPECT_EQ(frontEnd.messages[0].text,
            u"The following file(s) and/or folder(s) do not exist.\ngone0\nThe missing file(s) "
            u"will not be included. Do you want to continue?");
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
  EXPECT_EQ(frontEnd.messages[0].buttons, MessageButtons::kOkCancel);
  EXPECT_EQ(frontEnd.messages[0].title, u"Zenvoka Kestrow");
  EXPECT_EQ(frontEnd.messages[0].owner, frontEnd.focus);
}

TEST_F(PublishDriverTest, UpToTenMissingFilesAreListed) {
  IncludeMissingFiles(10);

  Publish();

  EXPECT_EQ(frontEnd.Texts().front(),
            u"The following file(s) and/or folder(s) do not exist.\ngone0\ngone1\ngone2\ngone3\n"
            u"gone4\ngone5\ngone6\ngone7\ngone8\ngone9\nThe missing file(s) will not be "
            u"included. Do you want to continue?");
}

TEST_F(PublishDriverTest, TheListOfMissingFilesEndsWithTheEleventh) {
  for (const int count : {11, 13}) {
    IncludeMissingFiles(count);
    frontEnd.messages.clear();

    Publish();

    EXPECT_EQ(frontEnd.Texts().front(),
              u"The following file(s) and/or folder(s) do not exist.\ngone0\ngone1\ngone2\n"
              u"gone3\ngone4\ngone5\ngone6\ngone7\ngone8\ngone9\ngone10\n...\nThe missing "
              u"file(s) will not be included. Do you want to continue?");
  }
}

TEST_F(PublishDriverTest, MissingFilesOfAnEarlierRunAreForgotten) {
  IncludeMissingFiles(2);
  Publish();
  EXPECT_THAT(MissingIncludedFiles, ElementsAre(u"gone0", u"gone1"));
  IncludeMissingFiles(1);

  Publish();

  EXPECT_THAT(MissingIncludedFiles, ElementsAre(u"gone0"));
}

// Everything is wrong; each run tells the first fault alone, which is then put right.
struct Fault {
  std::u16string message;
  std::function<void()> repair;
};

class PublishDriverOrderTest : public PublishDriverTest {
 protected:
  void ExpectInOrder(PublishTarget target, const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
      frontEnd.messages.clear();
      ExpectStop(target);
      EXPECT_THAT(frontEnd.Texts(), ElementsAre(fault.message));
      fault.repair();
    }
    EXPECT_EQ(Publish(target), 1);
  }
};

TEST_F(PublishDriverOrderTest, TheFirstOfSeveralFaultsOfAnAndroidRunIsTheOneTold) {
  SettingsSet(keys::kAdbOption, u"launch");
  SettingsSet(keys::kForceExport, u"true");
  SettingsSet(keys::kPublishType, u"debug");
  SettingsSet(keys::kTavDestination, u"gone/Game.apk");
  IncludeMissingFiles(1);
  host.exportResult = 0;
  files.Delete(u"C:/m/Game.qmv");
  files.Put(u"C:/m/Game-app.xml", "<");
  frontEnd.answer = kIdCancel;

  ExpectInOrder(
      PublishTargetApk,
      {{u"No device selected. Select at least one device to continue.",
        [] { SettingsSet(keys::kAdbOption, u"nothing"); }},
       {u"Error exporting the QMV file. Please see the error(s) in the compiler errors panel.",
        [this] { host.exportResult = 1; }},
       {kMovieMissing, [this] { files.Put(u"C:/m/Game.qmv"); }},
       {u"Application descriptor file cannot be parsed.",
        [this] { PutDescriptor("<icon><image48x48>a.png</image48x48></icon>"); }},
       {u"The application name is missing.",
        [this] { PutDescriptor("<name>G</name><icon><image48x48>a.png</image48x48></icon>"); }},
       {kPermissionNeeded, [] { SettingsSet(keys::kPublishType, u"release"); }},
       {u"Icon file is missing.\na.png", [this] { files.Put(u"C:/m/a.png"); }},
       {u"Error creating files.\n\nCould not write to the destination directory.",
        [] { SettingsSet(keys::kTavDestination, u"Game.apk"); }},
       {u"The following file(s) and/or folder(s) do not exist.\ngone0\nThe missing file(s) will "
        u"not be included. Do you want to continue?",
        [this] { frontEnd.answer = kIdOk; }}});
}

TEST_F(PublishDriverOrderTest, TheFirstOfSeveralFaultsOfAnIosRunIsTheOneTold) {
  PutDescriptor("<name>G</name><icon><image48x48>a.png</image48x48></icon>");
  SettingsSet(keys::kIpaProvisioningProfile, u"");
  SettingsSet(keys::kIpaDestination, u"gone/Game.ipa");

  ExpectInOrder(PublishTargetIpa,
                {{u"Icon file is missing.\na.png", [this] { files.Put(u"C:/m/a.png"); }},
                 {u"A provisioning profile must be selected.",
                  [] { SettingsSet(keys::kIpaProvisioningProfile, u"C:/k/p.mobileprovision"); }},
                 {u"Error creating files.\n\nCould not write to the destination directory.",
                  [] { SettingsSet(keys::kIpaDestination, u"Game.ipa"); }}});
}

TEST_F(PublishDriverTest, APublishForTheInterpreterNeedsNoInternetPermission) {
  SettingsSet(keys::kPublishType, u"debuginterpreter");

  EXPECT_EQ(Publish(), 1);
}

TEST_F(PublishDriverTest, TheDefaultDestinationStaysAfterARunThatStoppedAtTheQuestion) {
  IncludeMissingFiles(1);
  frontEnd.answer = kIdCancel;

  ExpectStop();

  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"Game.apk");
}

class PublishDriverCustomDescriptorTest : public PublishDriverTest {
 protected:
  PublishDriverCustomDescriptorTest() {
    SettingsSet(keys::kUseCustomDescriptor, u"true");
    SettingsSet(keys::kCustomDescriptorPath, u"D:/own/own.xml");
  }
};

TEST_F(PublishDriverCustomDescriptorTest, TheMoviesOwnDescriptorIsStillGenerated) {
  files.Delete(u"C:/m/Game-app.xml");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            std::u16string(kToolHead) +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" \"D:/own/own.xml\" "
                u"-C \"C:/m/\" \"Game.qmv\" ");
  EXPECT_TRUE(files.HasFile(u"C:/m/Game-app.xml"));
}

TEST_F(PublishDriverCustomDescriptorTest, TheNameIsThatOfTheMoviesOwnDescriptor) {
  files.Put(u"D:/own/own.xml",
            "<application xmlns=\"http://ns.zenvoka.example/tav/application/26.0\">"
            "<name>Custom</name></application>");

  EXPECT_EQ(Publish(), 1);
  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"Game.apk");

  PutDescriptor("<id>com.game</id>");
  EXPECT_EQ(Publish(), 0);
  EXPECT_EQ(frontEnd.Texts().back(), u"The application name is missing.");
}

TEST_F(PublishDriverCustomDescriptorTest, PermissionAndIconsAreThoseOfTheMoviesOwnDescriptor) {
  PutDescriptor("<name>Game</name><icon><image48x48>gone.png</image48x48></icon>");
  ExpectStop();
  ExpectWarning(u"Icon file is missing.\ngone.png");

  frontEnd.messages.clear();
  SettingsSet(keys::kPublishType, u"debug");
  ExpectStop();
  ExpectWarning(kPermissionNeeded);
}

TEST_F(PublishDriverCustomDescriptorTest, TheCustomFileIsNeitherReadNorWritten) {
  files.Put(u"D:/own/own.xml", "no descriptor at all");
  files.changes.clear();

  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(files.BytesOf(u"D:/own/own.xml"), "no descriptor at all");
  EXPECT_THAT(files.changes, IsEmpty());
}

}  // namespace
}  // namespace qutav::test
