// Test runs: through the host, or by a launch of the library's own.

#include "LaunchTest.h"
#include "win/SimulatorController.h"

namespace qutav::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class TestMovieTest : public LaunchTest {
 protected:
  // The library's own launch of the desktop.
  static constexpr char kDesktopLaunch[] = "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" ";

  void ChooseMobileWithController() {
    profile = u"mobileDevice";
    PutController();
  }
  // The document was saved under another name since its settings were stored.
  void Move() {
    host.data[keys::kMovieBaseName] = u"Old";
    host.data[keys::kDocumentPath] = u"C:/docs/Old.qud";
    files.Delete(descriptorPath);
  }
};

TEST_F(TestMovieTest, TheLaunchersAreKilledAndWaitedForFirst) {
  std::vector<std::u16string> evaluated;
  processes.play = [&](const std::u16string& command) {
    if (command == u"taskkill /IM wep.exe /F /T ") evaluated = host.scripts;
    return PlayedAnswer{"SUCCESS", 128, false, 2};
  };

  EXPECT_EQ(Test(), 1);

  EXPECT_EQ(processes.CommandLines().front(), u"taskkill /IM wep.exe /F /T ");
  EXPECT_THAT(evaluated, IsEmpty());
  EXPECT_THAT(clock.Sleeps(), SizeIs(2));
}

TEST_F(TestMovieTest, KillingTheLaunchersAlwaysCountsAsDone) {
  processes.pipesFail = true;

  EXPECT_TRUE(KillDebugLaunchers());
}

TEST_F(TestMovieTest, ACurrentDocumentIsLaunchedByTheHostAlone) {
  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Launches(), SizeIs(1));
  EXPECT_THAT(Commands(), IsEmpty());
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().exportQMV"), IsEmpty());
}

TEST_F(TestMovieTest, TheEvaluationsStatusIsTheFunctions) {
  host.onStatus = [](const std::u16string& script) {
    return script.find(u"debugTAVMovie") == script.npos ? 1 : 0;
  };

  EXPECT_EQ(Test(), 0);
}

TEST_F(TestMovieTest, AHostThatEvaluatesNothingLaunchesNothing) {
  HostEnvironment.words[55] = 0;

  EXPECT_EQ(Test(), 0);

  EXPECT_THAT(Launches(), IsEmpty());
  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(TestMovieTest, AHostThatEvaluatesNothingAfterTheScriptVersionLaunchesNothing) {
  host.onScript = [](const std::u16string& script) {
    if (script == u"qu.getDocumentDOM().asVersion") HostEnvironment.words[55] = 0;
    return std::nullopt;
  };

  EXPECT_EQ(Test(), 0);

  EXPECT_THAT(Launches(), IsEmpty());
  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(TestMovieTest, AContextThatCannotBePreparedCountsAsSuccess) {
  movieUri = u"file:///C:/gone/Game.qmv";

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Launches(), IsEmpty());
  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(TestMovieTest, AnOlderDocumentIsExportedAndLaunchedDirectly) {
  for (const char16_t* scriptVersion : {u"2", u"", u"3.0", u" 3"}) {
    host.scriptVersion = scriptVersion;
    host.scripts.clear();

    EXPECT_EQ(Test(), 1);

    EXPECT_THAT(
        host.ScriptsBeginning(u"qu.getDocumentDOM().exportQMV("),
        ElementsAre(u"qu.getDocumentDOM().exportQMV(\"file:///C:/m/Game.qmv\", \"true\");"));
    EXPECT_THAT(Launches(), IsEmpty());
    EXPECT_EQ(Commands().back(), kDesktopLaunch);
  }
}

TEST_F(TestMovieTest, AnOlderDocumentWhoseExportFailsIsNotLaunched) {
  host.scriptVersion = u"2";
  host.testExportResult = 1;

  EXPECT_EQ(Test(), 0);

  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(TestMovieTest, AnOlderDocumentWhoseExportThrowsIsNotLaunched) {
  host.scriptVersion = u"2";
  host.onStatus = [](const std::u16string& script) {
    return script.find(u"exportQMV") == script.npos ? 1 : 0;
  };

  EXPECT_EQ(Test(), 0);

  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(TestMovieTest, AnOlderDocumentNeverAdvancesThePort) {
  host.scriptVersion = u"2";

  Test();

  EXPECT_EQ(SimulatorPort, 7835);
}

TEST_F(TestMovieTest, AHostThatAnswersTwoLeavesTheLaunchToTheLibrary) {
  host.launchResult = 2;

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Launches(), SizeIs(1));
  EXPECT_THAT(Commands(), ElementsAre(kDesktopLaunch));
}

TEST_F(TestMovieTest, TheStatusOfTheLibrarysOwnLaunchReplacesTheHosts) {
  host.launchResult = 2;
  host.onStatus = [](const std::u16string& script) {
    return script.find(u"debugTAVMovie") == script.npos ? 1 : 0;
  };

  EXPECT_EQ(Test(), 1);
}

TEST_F(TestMovieTest, TheControllerStaysUpForALaunchOfTheHostsAndForTheLibrarysOwn) {
  ChooseMobileWithController();
  for (const std::int32_t answer : {0, 2}) {
    host.launchResult = answer;
    Test();
  }

  for (const std::string& command : Commands()) EXPECT_THAT(command, Not(HasSubstr("/PID")));
}

TEST_F(TestMovieTest, AControllerIsKilledWhenTheHostRefusesTheLaunch) {
  ChooseMobileWithController();
  host.launchResult = 1;

  EXPECT_EQ(Test(), 1);

  // The launchers' kill is the first process, the controller the second.
  EXPECT_THAT(Commands(), ElementsAre(HasSubstr("SimController"), "taskkill /PID 1001 /F /T"));
}

TEST_F(TestMovieTest, AControllerThatWasFoundAndNotStartedIsKilledAsProcessZero) {
  PutController();
  host.launchResult = -1;

  Test();

  EXPECT_THAT(Commands(), ElementsAre("taskkill /PID 0 /F /T"));
}

TEST_F(TestMovieTest, WithoutAControllerARefusedLaunchKillsNothing) {
  profile = u"mobileDevice";
  host.launchResult = 1;

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(TestMovieTest, AMissingDescriptorIsGenerated) {
  files.Delete(descriptorPath);

  EXPECT_EQ(Test(), 1);

  EXPECT_TRUE(files.HasFile(descriptorPath));
  EXPECT_THAT(Launches(), SizeIs(1));
}

TEST_F(TestMovieTest, AMovedDocumentTakesItsDescriptorWithItAndRemembersItsPlace) {
  Move();
  files.Put(u"C:/m/Old-app.xml", DescriptorText("26.0", "<copyright>mine</copyright>"));

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(files.BytesOf(descriptorPath), HasSubstr("<copyright>mine</copyright>"));
  EXPECT_EQ(SettingsGet(keys::kDocumentPath), u"C:/docs/Game.qud");
}

TEST_F(TestMovieTest, ADescriptorThatCannotBeWrittenIsToldAndCountsAsSuccess) {
  files.Delete(descriptorPath);
  files.readOnly.insert(u"C:/m/Game-app.xml");

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Launches(), IsEmpty());
}

TEST_F(TestMovieTest, ADescriptorThatCannotBeParsedIsToldAndCountsAsSuccess) {
  files.Put(descriptorPath, "<application");

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(frontEnd.Texts(), ::testing::Each(u"Application descriptor file cannot be parsed."));
  EXPECT_THAT(frontEnd.Texts(), SizeIs(2));
  EXPECT_THAT(Launches(), IsEmpty());
}

TEST_F(TestMovieTest, ASceneHasItsDescriptorGeneratedAnewForEachRun) {
  movieUri = u"file:///C:/m/Game_Scene 1.qmv";
  files.Put(u"C:/m/Game_Scene 1.qmv");
  for (int run = 0; run < 2; ++run) {
    files.Put(u"C:/m/Game_Scene 1-app.xml", DescriptorText("26.0", "<copyright>old</copyright>"));

    EXPECT_EQ(Test(), 1);

    EXPECT_THAT(files.BytesOf(u"C:/m/Game_Scene 1-app.xml"),
                AllOf(HasSubstr("Game_Scene"), Not(HasSubstr("old"))));
  }
}

TEST_F(TestMovieTest, ASceneWhoseDescriptorCannotBeWrittenIsNotLaunched) {
  movieUri = u"file:///C:/m/Game_Scene 1.qmv";
  files.Put(u"C:/m/Game_Scene 1.qmv");
  files.readOnly.insert(u"C:/m/Game_Scene 1-app.xml");

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Launches(), IsEmpty());
}

TEST_F(TestMovieTest, ASceneOfANewDocumentKeepsADescriptorThatIsThere) {
  host.data.erase(keys::kMovieFolder);
  movieUri = u"file:///C:/m/Game_Scene 1.qmv";
  files.Put(u"C:/m/Game_Scene 1.qmv");
  files.Put(u"C:/m/Game_Scene 1-app.xml", DescriptorText("26.0", "<copyright>old</copyright>"));

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(files.BytesOf(u"C:/m/Game_Scene 1-app.xml"), HasSubstr("old"));
}

TEST_F(TestMovieTest, ANewDocumentTakesItsTargetFromItsOutputTypeAndItsPlace) {
  host.data.erase(keys::kMovieFolder);
  host.data[keys::kOutputType] = u"ipa";
  host.data.erase(keys::kDocumentPath);
  files.Delete(descriptorPath);

  EXPECT_EQ(Test(), 1);

  EXPECT_EQ(SettingsGet(keys::kPublishIpa), u"true");
  EXPECT_EQ(SettingsGet(keys::kDocumentPath), u"C:/docs/Game.qud");
  EXPECT_TRUE(files.HasFile(descriptorPath));
}

TEST_F(TestMovieTest, AKnownDocumentKeepsItsTarget) {
  host.data[keys::kOutputType] = u"ipa";

  Test();

  EXPECT_EQ(SettingsGet(keys::kPublishIpa), u"");
}

TEST_F(TestMovieTest, TheDescriptorTakesOnTheNamespaceOfTheSdk) {
  files.Put(descriptorPath, DescriptorText("20.0"));

  Test();

  EXPECT_THAT(files.BytesOf(descriptorPath), HasSubstr("tav/application/26.0\""));
}

class PlainLaunchTest : public TestMovieTest {
 protected:
  PlainLaunchTest() { host.scriptVersion = u"2"; }

  std::string Launch() {
    Test();
    return Commands().empty() ? "" : Commands().back();
  }
};

TEST_F(PlainLaunchTest, TheDesktopIsLaunchedWithoutAProfile) {
  for (const auto& desktop :
       {std::optional<std::u16string>(), std::optional<std::u16string>(u"undefined"),
        std::optional<std::u16string>(u"desktop")}) {
    profile = desktop;
    EXPECT_EQ(Launch(), kDesktopLaunch);
  }
}

TEST_F(PlainLaunchTest, AnEmptyProfileIsNotTheDesktop) {
  profile = u"";

  EXPECT_EQ(Launch(), "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" -profile ");
}

TEST_F(PlainLaunchTest, AMobileProfileHasAScreenSize) {
  profile = u"mobileDevice";

  EXPECT_EQ(Launch(),
            "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" -profile mobileDevice "
            "-screensize 480x800:480x800");
}

TEST_F(PlainLaunchTest, AControllerThatIsThereIsNamedByTheLatestPortAndNotStarted) {
  ChooseMobileWithController();
  SimulatorPort = 7840;

  EXPECT_EQ(Launch(),
            "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" -profile mobileDevice "
            "-screensize 480x800:480x800 -Xsimulation 7840");
  EXPECT_THAT(Commands(), SizeIs(1));
  EXPECT_EQ(SimulatorPort, 7840);
}

TEST_F(PlainLaunchTest, NativeExtensionsExtendTheProfileAndNameTheirFolder) {
  PutExtension();

  EXPECT_EQ(Launch(),
            "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" -profile extendedMobileDevice "
            "-extdir \"C:/unzipped/a\"  -screensize 480x800:480x800");
}

TEST_F(PlainLaunchTest, ExtensionsThatTheHostHasNotUnpackedHaveNoFolder) {
  PutExtension();
  host.data.erase(keys::kUnzippedExtensions);

  EXPECT_EQ(Launch(),
            "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" -profile extendedMobileDevice "
            "-screensize 480x800:480x800");
}

TEST_F(PlainLaunchTest, ExtensionsOfAMobileProfileHaveEverything) {
  PutExtension();
  ChooseMobileWithController();

  EXPECT_EQ(Launch(),
            "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" -profile extendedMobileDevice "
            "-extdir \"C:/unzipped/a\"  -screensize 480x800:480x800 -Xsimulation 7835");
}

TEST_F(PlainLaunchTest, AnExtendedProfileOfTheScriptsHasNoScreenSize) {
  profile = u"extendedMobileDevice";

  EXPECT_EQ(Launch(),
            "\"C:/host/TAV26.0/bin/wep.exe\" \"C:/m/Game-app.xml\" -profile extendedMobileDevice");
}

TEST_F(PlainLaunchTest, TheLauncherIsNotWaitedFor) {
  processes.play = [](const std::u16string& command) {
    return PlayedAnswer{"", 0, command.find(u"wep.exe\" ") != command.npos};
  };

  EXPECT_EQ(Test(), 1);
}

TEST_F(PlainLaunchTest, ALaunchThatFailsLeavesATrace) {
  processes.pipesFail = true;

  EXPECT_EQ(Test(), 1);

  EXPECT_EQ(host.scripts.back(), u"qu.trace(\"\");");
}

TEST(TraceScriptTest, AnOutputIsOneTextOfTheScriptLanguage) {
  EXPECT_EQ(TraceScript(u"a\"b\r\nc"), u"qu.trace(\"a'b\\nc\");");
}

TEST_F(PlainLaunchTest, ALaunchThatSucceedsLeavesNone) {
  Test();

  EXPECT_THAT(host.ScriptsBeginning(u"qu.trace"), IsEmpty());
}

TEST_F(PlainLaunchTest, ADescriptorThatCannotBeWrittenIsToldAndCountsAsSuccess) {
  files.Delete(descriptorPath);
  files.readOnly.insert(u"C:/m/Game-app.xml");

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(PlainLaunchTest, ADescriptorThatCannotBeParsedIsNotLaunched) {
  files.Put(descriptorPath, "<application");

  EXPECT_EQ(Test(), 1);

  EXPECT_THAT(Commands(), IsEmpty());
}

}  // namespace
}  // namespace qutav::test
