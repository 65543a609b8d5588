#include "PublishableDocumentTest.h"
#include "framework/CPropertySheet.h"
#include "packaging/DeviceBridge.h"
#include "win/PublishCommand.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr char16_t kEndSession[] = u"qu.endDebugSession(true)";

class PublishCommandOnDeviceTest : public PublishableDocumentTest {
 protected:
  PublishCommandOnDeviceTest() {
    DebugPort = kFirstDebugPort;
    host.data[keys::kPublishType] = u"release";
    processes.play = [this, answer = processes.play](const std::u16string& command) {
      if (command.find(u" -package -target ") != command.npos) atPackaging = SettingsMap;
      return answer(command);
    };
  }

  std::int32_t Test() { return Run(u"testOnDevice"); }
  std::int32_t Debug() { return Run(u"debugOnDevice"); }
  std::int32_t Run(const std::u16string& command) {
    return RunPublishCommand(call, Arguments().data(), command);
  }

  // How the host's debug session was begun and ended.
  std::vector<std::u16string> SessionScripts() const {
    std::vector<std::u16string> scripts;
    for (const std::u16string& script : host.scripts) {
      if (script.find(u"DebugSession") != script.npos) scripts.push_back(script);
    }
    return scripts;
  }

  // Makes `PublishEntry` open the sheet instead of packaging.
  void OpenSheet(const std::function<void()>& act) {
    SettingsSet(keys::kCertificatePath, u"");
    frontEnd.onSheet = [act](CPropertySheet&) { act(); };
  }

  SettingsTexts atPackaging;
};

TEST_F(PublishCommandOnDeviceTest, TheSelectedDeviceIsFetchedFromTheHost) {
  DebugDeviceSerial = u"OLD";

  Test();

  EXPECT_EQ(DebugDeviceSerial, u"SER1");
  EXPECT_THAT(host.scripts, Contains(u"qu.getDocumentDOM().getSelectedDevice(\"android\");"));
}

TEST_F(PublishCommandOnDeviceTest, WithoutAnAnswerThereIsNoSelectedDevice) {
  DebugDeviceSerial = u"OLD";
  host.selectedDevice = u"";

  Test();

  EXPECT_EQ(DebugDeviceSerial, u"");
}

TEST_F(PublishCommandOnDeviceTest, TheNumberZeroNamesNoDevice) {
  DebugDeviceSerial = u"OLD";
  host.onScript = [this](const std::u16string& script) -> std::optional<HostValue> {
    if (script.find(u"getSelectedDevice(") == script.npos) return {};
    return host.Integer(0);
  };

  Test();

  EXPECT_EQ(DebugDeviceSerial, u"");
}

TEST_F(PublishCommandOnDeviceTest, TestingSetsItsMarksForTheLengthOfTheRun) {
  Test();

  EXPECT_EQ(atPackaging[u"com.tav.pelund.testOnDevice"], u"true");
  EXPECT_EQ(atPackaging[u"com.tav.pelund.debugOnDevice"], u"");
  EXPECT_EQ(atPackaging[u"com.tav.moresh.forceQMVPublish"], u"true");
  EXPECT_EQ(SettingsGet(u"com.tav.pelund.testOnDevice"), u"");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.forceQMVPublish"), u"");
}

TEST_F(PublishCommandOnDeviceTest, DebuggingSetsItsMarksForTheLengthOfTheRun) {
  Debug();

  EXPECT_EQ(atPackaging[u"com.tav.pelund.debugOnDevice"], u"true");
  EXPECT_EQ(atPackaging[u"com.tav.pelund.testOnDevice"], u"");
  EXPECT_EQ(atPackaging[u"com.tav.moresh.forceQMVPublish"], u"true");
  EXPECT_EQ(SettingsGet(u"com.tav.pelund.debugOnDevice"), u"");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.forceQMVPublish"), u"");
}

TEST_F(PublishCommandOnDeviceTest, TheMovieIsExportedAgainEvenWhenItExists) {
  Test();

  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().exportQMVPrivate"), SizeIs(1));
}

TEST_F(PublishCommandOnDeviceTest, DebuggingPackagesAReleaseAsDebugAndGivesTheTypeBack) {
  Debug();

  EXPECT_EQ(atPackaging[u"com.tav.pelund.publishtype"], u"debug");
  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr("-target apk-debug -listen 7936")));
  EXPECT_EQ(SettingsGet(u"com.tav.pelund.publishtype"), u"release");
}

TEST_F(PublishCommandOnDeviceTest, DebuggingGivesAnEmptyTypeBackAsEmpty) {
  host.data.erase(keys::kPublishType);

  Debug();

  EXPECT_EQ(SettingsGet(u"com.tav.pelund.publishtype"), u"");
}

TEST_F(PublishCommandOnDeviceTest, TestingLeavesThePublishTypeAlone) {
  Test();

  EXPECT_EQ(atPackaging[u"com.tav.pelund.publishtype"], u"release");
  EXPECT_EQ(SettingsGet(u"com.tav.pelund.publishtype"), u"release");
}

TEST_F(PublishCommandOnDeviceTest, ATypeChangedOnTheSheetDuringTheRunIsRespected) {
  OpenSheet([] {
    EXPECT_EQ(SettingsGet(keys::kPublishType), u"debug");
    SettingsSet(keys::kPublishType, u"release-emulator");
  });

  Debug();

  EXPECT_EQ(SettingsGet(u"com.tav.pelund.publishtype"), u"release-emulator");
}

TEST_F(PublishCommandOnDeviceTest, TheSheetsOkSavesThePublishTypeOfBeforeAndThenTheSessionEnds) {
  SettingsSet(keys::kCertificatePath, u"");
  frontEnd.onSheet = [](CPropertySheet& sheet) {
    sheet.SetActivePage(0);
    Find<Edit>(*sheet.Pages()[0], u"Output file:").Type(u"C:/out/Game.apk");
    PressButton(sheet, u"OK");
  };

  Debug();

  EXPECT_EQ(host.data[u"com.tav.pelund.publishtype"], u"release");
  EXPECT_EQ(host.data[u"com.tav.moresh.tavdest"], u"C:/out/Game.apk");
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().addDataToDocument("),
              Contains(u"qu.getDocumentDOM().addDataToDocument(\"com.tav.pelund.publishtype\", "
                       u"\"string\", \"release\");"));
  EXPECT_THAT(SessionScripts(), ElementsAre(kEndSession));
  EXPECT_EQ(host.scripts.back(), kEndSession);
}

TEST_F(PublishCommandOnDeviceTest, BothRunsInstallAndLaunchWhateverTheDocumentAsksFor) {
  for (const char16_t* command : {u"testOnDevice", u"debugOnDevice"}) {
    SettingsSet(keys::kAdbOption, u"nothing");
    atPackaging.clear();

    Run(command);

    EXPECT_EQ(atPackaging[u"com.tav.pelund.adbopt"], u"launch");
  }
}

TEST_F(PublishCommandOnDeviceTest, TestingLeavesLaunchBehindInTheInstallOption) {
  SettingsSet(keys::kAdbOption, u"nothing");

  Test();

  EXPECT_EQ(SettingsGet(u"com.tav.pelund.adbopt"), u"launch");
}

TEST_F(PublishCommandOnDeviceTest, DebuggingLeavesLaunchBehindForThePublishesThatFollow) {
  SettingsSet(keys::kAdbOption, u"install");

  Debug();
  Run(u"publish");

  EXPECT_EQ(SettingsGet(u"com.tav.pelund.adbopt"), u"launch");
}

TEST_F(PublishCommandOnDeviceTest, AnInstallOptionChangedToInstallDuringTheRunStays) {
  SettingsSet(keys::kAdbOption, u"nothing");
  OpenSheet([] { SettingsSet(keys::kAdbOption, u"install"); });

  Test();

  EXPECT_EQ(SettingsGet(u"com.tav.pelund.adbopt"), u"install");
}

TEST_F(PublishCommandOnDeviceTest, TwelveDebugRunsUseElevenPortsAndThenTheFirstAgain) {
  for (int run = 0; run < 12; ++run) Debug();

  EXPECT_THAT(SessionScripts(),
              ElementsAre(u"qu.beginPortDebugSession(7936);", u"qu.beginPortDebugSession(7937);",
                          u"qu.beginPortDebugSession(7938);", u"qu.beginPortDebugSession(7939);",
                          u"qu.beginPortDebugSession(7940);", u"qu.beginPortDebugSession(7941);",
                          u"qu.beginPortDebugSession(7942);", u"qu.beginPortDebugSession(7943);",
                          u"qu.beginPortDebugSession(7944);", u"qu.beginPortDebugSession(7945);",
                          u"qu.beginPortDebugSession(7946);", u"qu.beginPortDebugSession(7936);"));
}

TEST_F(PublishCommandOnDeviceTest, APublishBetweenTwoDebugRunsUsesUpAPort) {
  Debug();
  SettingsSet(keys::kAdbOption, u"nothing");
  Run(u"publish");
  Debug();

  EXPECT_THAT(SessionScripts(),
              ElementsAre(u"qu.beginPortDebugSession(7936);", u"qu.beginPortDebugSession(7938);"));
}

TEST_F(PublishCommandOnDeviceTest, ThePortIsStoredBeforePackaging) {
  DebugPort = 7941;

  Debug();

  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr(" -listen 7941 ")));
  EXPECT_EQ(RegistryValue(registry, u"usbPort"), u"7941");
}

TEST_F(PublishCommandOnDeviceTest, TheSessionTakesItsPortFromTheRegistry) {
  frontEnd.onMessage = [this](const MessageBoxRequest&) {
    registry.keys[RegistrySettingsKeyPath()] = {{u"usbPort", u" 08000 "}};
  };

  Debug();

  EXPECT_THAT(SessionScripts(), ElementsAre(u"qu.beginPortDebugSession(8000);"));
}

TEST_F(PublishCommandOnDeviceTest, WithoutARegistryTheSessionBeginsAtPortZero) {
  registry.refuses = true;

  Debug();

  EXPECT_THAT(SessionScripts(), ElementsAre(u"qu.beginPortDebugSession(0);"));
}

TEST_F(PublishCommandOnDeviceTest, ADebugRunThatFailsEndsTheSessionAndUndoesItsSettings) {
  host.exportResult = 0;

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(SessionScripts(), ElementsAre(kEndSession));
  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
  EXPECT_EQ(SettingsGet(keys::kDebugOnDevice), u"");
  EXPECT_EQ(SettingsGet(keys::kForceExport), u"");
}

TEST_F(PublishCommandOnDeviceTest, ADebugRunThatOpensTheSheetEndsTheSession) {
  OpenSheet([] {});

  Debug();

  EXPECT_THAT(SessionScripts(), ElementsAre(kEndSession));
}

TEST_F(PublishCommandOnDeviceTest, ADebugRunThatCannotBePreparedEndsTheSession) {
  movieUri = u"file:///C:/gone/Game.qmv";

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(SessionScripts(), ElementsAre(kEndSession));
  EXPECT_EQ(DebugPort, 7936);
}

TEST_F(PublishCommandOnDeviceTest, ADebugRunWhoseDescriptorCannotBeParsedEndsTheSession) {
  files.Put(descriptorPath, "<application");

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(SessionScripts(), ElementsAre(kEndSession));
  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"");
  EXPECT_EQ(DebugPort, 7936);
}

TEST_F(PublishCommandOnDeviceTest, AnUnforeseenErrorInADebugRunEndsTheSession) {
  files.Put(descriptorPath,
            DescriptorText("26.0", "<supported><extensions>nested</extensions></supported>"));

  EXPECT_ANY_THROW(Debug());

  EXPECT_THAT(SessionScripts(), ElementsAre(kEndSession));
}

TEST_F(PublishCommandOnDeviceTest, ATestRunNeverTouchesTheSession) {
  Test();
  host.exportResult = 0;
  Test();
  files.Put(descriptorPath, "<application");
  Test();
  movieUri = u"file:///C:/gone/Game.qmv";
  Test();

  EXPECT_THAT(SessionScripts(), IsEmpty());
}

TEST_F(PublishCommandOnDeviceTest, BothRunsReturnOneAlsoWhenPackagingFails) {
  host.exportResult = 0;

  EXPECT_EQ(Test(), 1);
  EXPECT_EQ(Debug(), 1);
}

}  // namespace
}  // namespace qutav::test
