// The export of the movie through the host, and the copies of native extensions.

#include "PackagingTest.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char16_t kExport[] =
    u"qu.getDocumentDOM().exportQMVPrivate(\"file:///C:/m/Game.qmv\", \"true\");";

class PublishDriverExportTest : public PackagingTest {
 protected:
  PublishDriverExportTest() {
    DocumentPaths.MovieUri = u"file:///C:/m/Game.qmv";
    PutDescriptor(
        "<name>Game</name><android><manifestAdditions><![CDATA[<manifest><uses-permission "
        "android:name=\"android.permission.INTERNET\"/></manifest>]]></manifestAdditions>"
        "</android>");
  }

  static int ExportAndPublish() { return PublishDriver(PublishTargetApk, true); }
  void SetDebugPublish() {
    SettingsSet(keys::kPublishType, u"debug");
    host.debug = false;
  }
};

TEST_F(PublishDriverExportTest, TheMovieIsExportedWhenTheCallerAsksForIt) {
  EXPECT_EQ(ExportAndPublish(), 1);

  EXPECT_THAT(host.scripts, ElementsAre(kExport));
}

TEST_F(PublishDriverExportTest, TheMovieIsNotExportedOtherwise) {
  SettingsSet(keys::kForceExport, u"True");

  EXPECT_EQ(Publish(), 1);

  EXPECT_THAT(host.scripts, IsEmpty());
}

TEST_F(PublishDriverExportTest, TheForcingMarkExportsEvenIfTheCallerDoesNotAskForIt) {
  SettingsSet(keys::kForceExport, u"true");

  EXPECT_EQ(Publish(), 1);

  EXPECT_THAT(host.scripts, ElementsAre(kExport));
}

TEST_F(PublishDriverExportTest, AFailedExportStopsTheRun) {
  for (const std::int32_t result : {0, -1}) {
    host.exportResult = result;
    frontEnd.messages.clear();

    EXPECT_EQ(ExportAndPublish(), 0);

    ExpectInformation(
        u"Error exporting the QMV file. Please see the error(s) in the compiler errors panel.");
  }
}

TEST_F(PublishDriverExportTest, AHostThatDoesNotAnswerCountsAsAFailedExport) {
  host.exportStatus = 0;

  EXPECT_EQ(ExportAndPublish(), 0);

  ExpectInformation(
      u"Error exporting the QMV file. Please see the error(s) in the compiler errors panel.");
}

TEST_F(PublishDriverExportTest, AnExportThatTheUserStoppedEndsTheRunInSilence) {
  host.exportResult = 3;

  EXPECT_EQ(ExportAndPublish(), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(PublishDriverExportTest, AMovieWithoutScriptCannotBeDebugged) {
  host.exportResult = 2;

  for (const char16_t* type : {u"debug", u"debuginterpreter"}) {
    SettingsSet(keys::kPublishType, type);
    frontEnd.messages.clear();

    EXPECT_EQ(ExportAndPublish(), 0);

    ExpectInformation(u"You cannot debug this QMV because it does not contain Vokscript.");
  }
}

TEST_F(PublishDriverExportTest, AMovieWithoutScriptCanBeReleased) {
  host.exportResult = 2;

  EXPECT_EQ(ExportAndPublish(), 1);

  EXPECT_EQ(processes.CommandLines().size(), 1u);
}

TEST_F(PublishDriverExportTest, AnyOtherResultOfTheExportPasses) {
  for (const std::int32_t result : {1, 4, 100}) {
    host.exportResult = result;

    EXPECT_EQ(ExportAndPublish(), 1);
  }
}

TEST_F(PublishDriverExportTest, ADebugPublishSwitchesTheDebugFlagOnForTheExportAlone) {
  SetDebugPublish();

  EXPECT_EQ(ExportAndPublish(), 1);

  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().getDebugForQmv();",
                                        u"qu.getDocumentDOM().setDebugForQmv(true,false);", kExport,
                                        u"qu.getDocumentDOM().setDebugForQmv(false,false);"));
}

TEST_F(PublishDriverExportTest, ADebugFlagThatWasOnStaysOn) {
  SetDebugPublish();
  host.debug = true;

  EXPECT_EQ(ExportAndPublish(), 1);

  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().getDebugForQmv();", kExport));
  EXPECT_TRUE(host.debug);
}

TEST_F(PublishDriverExportTest, AStoppedRunLeavesTheDebugFlagSwitchedOn) {
  for (const std::int32_t result : {0, 2, 3}) {
    SetDebugPublish();
    host.exportResult = result;

    EXPECT_EQ(ExportAndPublish(), 0);

    EXPECT_TRUE(host.debug) << "after an export with the result " << result;
  }
}

TEST_F(PublishDriverExportTest, EveryBoxAfterTheExportBelongsToTheWindowThatHadTheFocusBefore) {
  const WindowHandle first = frontEnd.focus;
  int other = 0;
  host.onScript = [&](const std::u16string&) {
    frontEnd.focus = &other;
    return std::nullopt;
  };
  const auto ownerOfFirstBox = [&] {
    frontEnd.focus = first;
    frontEnd.messages.clear();
    ExportAndPublish();
    return frontEnd.messages.at(0).owner;
  };

  EXPECT_EQ(ownerOfFirstBox(), first) << "information at the end";
  PlayTool(1, "bad");
  EXPECT_EQ(ownerOfFirstBox(), first) << "warning at the end";
  IncludeMissingFiles(1);
  EXPECT_EQ(ownerOfFirstBox(), first) << "question";
  SettingsSet(keys::kTavDestination, u"gone/Game.apk");
  EXPECT_EQ(ownerOfFirstBox(), first) << "warning";
  files.Delete(u"C:/m/Game.qmv");
  EXPECT_EQ(ownerOfFirstBox(), first) << "information";
}

class PublishDriverExtensionsTest : public PackagingTest {
 protected:
  PublishDriverExtensionsTest() {
    files.Put(u"C:/lib/a.zux", "package");
    files.PutFolder(u"C:/temp");
    ExtensionFilePaths = {u"C:\\lib\\a.zux"};
    ExtensionFileNames = {u"a.zux"};
    ExtensionCacheFolder = u"C:\\temp\\Game_ZUX_Cache\\";
    SettingsSet(keys::kExtensionFolder, ExtensionCacheFolder);
    processes.play = [this](const std::u16string&) {
      copyDuringRun = files.BytesOf(kCopy);
      return PlayedAnswer{};
    };
  }

  static constexpr char16_t kCopy[] = u"C:/temp/Game_ZUX_Cache/a.zux";
  std::string copyDuringRun;
};

TEST_F(PublishDriverExtensionsTest, ExtensionsStandAtTheEndOfTheLine) {
  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            std::u16string(kToolHead) +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" "
                u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\"  -extdir "
                u"\"C:/temp/Game_ZUX_Cache/\" ");
}

TEST_F(PublishDriverExtensionsTest, CopiesAreThereForTheToolAndGoneAfterAnAndroidRun) {
  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(copyDuringRun, "package");
  EXPECT_FALSE(files.HasFile(kCopy));
  EXPECT_FALSE(files.Exists(u"C:/temp/Game_ZUX_Cache"));
}

TEST_F(PublishDriverExtensionsTest, CopiesForTheOtherTargetsStay) {
  for (const PublishTarget target : {PublishTargetIpa, PublishTargetExe}) {
    files.Delete(kCopy);

    EXPECT_EQ(Publish(target), 1);

    EXPECT_EQ(copyDuringRun, "package");
    EXPECT_TRUE(files.HasFile(kCopy));
  }
}

TEST_F(PublishDriverExtensionsTest, WithoutTheirFolderInTheSettingsNothingIsCopied) {
  SettingsSet(keys::kExtensionFolder, u"");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            std::u16string(kToolHead) +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" "
                u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ");
  EXPECT_EQ(copyDuringRun, "");
}

TEST_F(PublishDriverExtensionsTest, ARunThatFailedInTheToolRemovesItsCopiesToo) {
  PlayTool(1, "bad");

  EXPECT_EQ(Publish(), 0);

  EXPECT_FALSE(files.HasFile(kCopy));
}

TEST_F(PublishDriverExtensionsTest, ARunThatStopsAtTheQuestionCopiesNothing) {
  IncludeMissingFiles(1);
  frontEnd.answer = kIdCancel;

  EXPECT_EQ(Publish(), 0);

  EXPECT_FALSE(files.HasFile(kCopy));
}

TEST_F(PublishDriverExtensionsTest, PasswordsAndCopiesAreThereWhileTheReportIsShown) {
  std::u16string password;
  std::u16string iosPassword;
  bool hasCopy = false;
  frontEnd.onMessage = [&](const MessageBoxRequest&) {
    password = SettingsGet(keys::kCertificatePassword);
    iosPassword = SettingsGet(keys::kIpaCertificatePassword);
    hasCopy = files.HasFile(kCopy);
  };
  PlayTool(1, "bad");

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(u"Error creating files.\n\nbad");
  EXPECT_EQ(password, u"PASSWORD");
  EXPECT_EQ(iosPassword, u"PASSWORD");
  EXPECT_TRUE(hasCopy);
  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePassword));
  EXPECT_FALSE(SettingsMap.contains(keys::kIpaCertificatePassword));
  EXPECT_FALSE(files.HasFile(kCopy));
}

TEST_F(PublishDriverExtensionsTest, ImagesComeBeforeIncludedItemsAndExtensionsLast) {
  PutDescriptor("<name>Game</name><icon><image48x48>icons/a.png</image48x48></icon>");
  files.Put(u"C:/m/icons/a.png");
  files.Put(u"C:/m/data/levels.xml");
  SettingsSet(keys::kIncludedCount, u"1");
  SettingsSet(keys::kIncludedItem + std::u16string(u"0"), u"data/levels.xml");

  EXPECT_EQ(PublishedCommand(PublishTargetApk),
            std::u16string(kToolHead) +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"PASSWORD\" \"C:/m/Game.apk\" "
                u"\"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" \"icons/a.png\"  -C \"C:/m/\" "
                u"\"data/levels.xml\"  -extdir \"C:/temp/Game_ZUX_Cache/\" ");
}

}  // namespace
}  // namespace qutav::test
