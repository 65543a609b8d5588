// The call by which the host launches the movie, for test and debug runs alike.

#include "LaunchTest.h"
#include "win/LaunchCall.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class LaunchCallTest : public LaunchTest {};

TEST_F(LaunchCallTest, TheDesktopHasNoProfileAndNoScreenSize) {
  Test();

  EXPECT_THAT(Launches(), ElementsAre(LaunchOf(R"("false", "", "", "", "",-1,"","","","")")));
}

TEST_F(LaunchCallTest, NoProfileAndTheTextUndefinedCountAsTheDesktop) {
  for (const auto& none :
       {std::optional<std::u16string>(), std::optional<std::u16string>(u"undefined")}) {
    profile = none;
    host.scripts.clear();
    Test();
    EXPECT_THAT(Launches(), ElementsAre(LaunchOf(R"("false", "", "", "", "",-1,"","","","")")));
  }
}

TEST_F(LaunchCallTest, AMobileProfileWithoutAControllerHasAScreenSizeAndNoPort) {
  profile = u"mobileDevice";

  Test();

  EXPECT_THAT(Launches(),
              ElementsAre(LaunchOf(
                  R"("false", "mobileDevice", "", "", "480x800:480x800",-1,"","","","")")));
}

TEST_F(LaunchCallTest, AMobileProfileWithAControllerIsExtendedAndHasAPort) {
  profile = u"mobileDevice";
  PutController();

  Test();

  EXPECT_THAT(
      Launches(),
      ElementsAre(LaunchOf(
          R"("false", "extendedMobileDevice", "", "", "480x800:480x800",-1,"","","","7836")")));
}

TEST_F(LaunchCallTest, NativeExtensionsExtendTheDesktopAndGiveItAScreenSizeAndNoPort) {
  PutExtension();
  PutController();

  Test();

  EXPECT_THAT(Launches(), ElementsAre(LaunchOf(
                              R"("false", "extendedMobileDevice", "", "", "480x800:480x800",-1,"",)"
                              R"("C:/unzipped/a","","")")));
}

TEST_F(LaunchCallTest, ExtensionsThatTheHostHasNotUnpackedHaveNoFolder) {
  PutExtension();
  host.data.erase(keys::kUnzippedExtensions);

  Test();

  EXPECT_THAT(Launches(),
              ElementsAre(LaunchOf(
                  R"("false", "extendedMobileDevice", "", "", "480x800:480x800",-1,"","","","")")));
}

TEST_F(LaunchCallTest, AnUnpackedFolderWithoutPackagesIsNotAskedFor) {
  host.data[keys::kUnzippedExtensions] = u"C:\\unzipped\\a";

  Test();

  EXPECT_THAT(Launches(), ElementsAre(LaunchOf(R"("false", "", "", "", "",-1,"","","","")")));
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().getDataFromDocument(\"zux"), IsEmpty());
}

TEST_F(LaunchCallTest, AnExtendedProfileOfTheScriptsIsPassedOnWithoutAScreenSize) {
  profile = u"extendedMobileDevice";
  PutController();

  Test();

  EXPECT_THAT(
      Launches(),
      ElementsAre(LaunchOf(R"("false", "extendedMobileDevice", "", "", "",-1,"","","","")")));
  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(LaunchCallTest, AnUnknownProfileIsPassedOnAsItIs) {
  profile = u"Desktop";

  Test();

  EXPECT_THAT(Launches(),
              ElementsAre(LaunchOf(R"("false", "Desktop", "", "", "",-1,"","","","")")));
}

TEST_F(LaunchCallTest, AnEmptyProfileStaysEmpty) {
  profile = u"";

  Test();

  EXPECT_THAT(Launches(), ElementsAre(LaunchOf(R"("false", "", "", "", "",-1,"","","","")")));
}

TEST_F(LaunchCallTest, AChosenSdkComesBeforeTheOneBesideTheHost) {
  host.data[keys::kSdkPath] = u"D:\\sdk";

  Test();

  EXPECT_THAT(Launches(),
              ElementsAre(StartsWith("qu.getDocumentDOM().debugTAVMovie(\"D:/sdk/bin/wep.exe\", "
                                     "\"D:/sdk/runtimes/tav/win\", ")));
}

TEST_F(LaunchCallTest, LaunchersHaveTheEndingOfTheSystem) {
  processes.suffix = u"";

  Test();

  EXPECT_THAT(Launches(), ElementsAre(HasSubstr("(\"C:/host/TAV26.0/bin/wep\", ")));
}

TEST_F(LaunchCallTest, TheControllerIsStartedOnThePortInTheHostsLanguageAndGivenASecond) {
  profile = u"mobileDevice";
  host.languageCode = u"ja_JP";
  PutController();

  Test();

  EXPECT_THAT(Commands(),
              ElementsAre("C:/host/Common/Configuration/simulator/SimController.exe  -once  -lang "
                          "ja_JP -port 7836"));
  EXPECT_THAT(clock.Sleeps(), ::testing::Contains(std::chrono::milliseconds(1000)));
}

TEST_F(LaunchCallTest, TheControllerIsUpBeforeTheHostLaunches) {
  profile = u"mobileDevice";
  PutController();
  std::vector<std::string> startedBefore;
  std::size_t sleepsBefore = 0;
  host.onScript = [&](const std::u16string& script) -> std::optional<HostValue> {
    if (script.find(u"debugTAVMovie") != script.npos) {
      startedBefore = Commands();
      sleepsBefore = clock.Sleeps().size();
    }
    return {};
  };

  Test();

  EXPECT_THAT(startedBefore, ElementsAre(HasSubstr("SimController.exe")));
  EXPECT_EQ(sleepsBefore, clock.Sleeps().size());
}

TEST_F(LaunchCallTest, AControllerSpeaksEnglishWhereTheHostNamesNoLanguage) {
  profile = u"mobileDevice";
  PutController();
  for (const char16_t* code : {u"", u"0"}) {
    host.languageCode = code;
    Test();
    EXPECT_THAT(Commands().back(), HasSubstr(" -lang en_US -port "));
  }
}

TEST_F(LaunchCallTest, AControllerThatCannotBeStartedIsDoneWithout) {
  profile = u"mobileDevice";
  PutController();
  processes.pipesFail = true;

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Launches(),
              ElementsAre(LaunchOf(
                  R"("false", "mobileDevice", "", "", "480x800:480x800",-1,"","","","")")));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(LaunchCallTest, AControllerIsNotStartedForTheDesktop) {
  PutController();

  Test();

  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(LaunchCallTest, TheSmallerSideOfTheStageComesFirst) {
  host.width = 320;
  host.height = 568;
  EXPECT_EQ(BuildScreenSize(call), u"320x568:320x568");
  host.width = 1920;
  host.height = 1080;
  EXPECT_EQ(BuildScreenSize(call), u"1080x1920:1080x1920");
}

TEST_F(LaunchCallTest, ASideThatCannotBeReadIsZero) {
  host.onStatus = [](const std::u16string& script) {
    return script == u"qu.getDocumentDOM().width;" ? 0 : 1;
  };

  EXPECT_EQ(BuildScreenSize(call), u"0x480:0x480");
}

TEST_F(LaunchCallTest, TenRunsUseTenPortsAndTheEleventhTheFirstAgain) {
  profile = u"mobileDevice";
  PutController();

  for (int run = 0; run < 11; ++run) Test();

  std::vector<std::string> ports;
  for (const std::string& launch : Launches()) ports.push_back(launch.substr(launch.size() - 7));
  EXPECT_THAT(ports,
              ElementsAre("7836\");", "7837\");", "7838\");", "7839\");", "7840\");", "7841\");",
                          "7842\");", "7843\");", "7844\");", "7845\");", "7836\");"));
}

TEST_F(LaunchCallTest, TestAndDebugRunsShareTheirPorts) {
  profile = u"mobileDevice";
  PutController();

  Test();
  Debug();
  Test();

  EXPECT_THAT(Launches(),
              ElementsAre(EndsWith("\"7836\");"), EndsWith("\"7837\");"), EndsWith("\"7838\");")));
}

TEST_F(LaunchCallTest, ARunWithoutAControllerUsesUpAPortToo) {
  Test();
  profile = u"mobileDevice";
  PutController();

  Test();

  EXPECT_THAT(Launches().back(), EndsWith("\"7837\");"));
}

TEST_F(LaunchCallTest, TheHostIsAskedForTheStageBeforeTheExtensionsFolder) {
  PutExtension();

  Test();

  std::vector<std::u16string> asked;
  for (const std::u16string& script : host.scripts) {
    if (script.find(u"height") != script.npos || script.find(u"unzipped.folder") != script.npos) {
      asked.push_back(script);
    }
  }
  EXPECT_THAT(
      asked, ElementsAre(u"qu.getDocumentDOM().height;",
                         u"qu.getDocumentDOM().getDataFromDocument(\"zux.tmp.unzipped.folder\");"));
}

TEST_F(LaunchCallTest, ADebugRunDiffersInTheDebugArgumentAlone) {
  profile = u"mobileDevice";
  PutController();

  Debug();

  EXPECT_THAT(
      Launches(),
      ElementsAre(LaunchOf(
          R"("true", "extendedMobileDevice", "", "", "480x800:480x800",-1,"","","","7836")")));
}

}  // namespace
}  // namespace qutav::test
