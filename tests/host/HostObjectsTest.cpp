#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "TestFolder.h"
#include "host/FileUri.h"
#include "host/HostObjects.h"
#include "host/NativePath.h"
#include "host/ProcessFamily.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

class HostObjectsTest : public ::testing::Test {
 protected:
  HostObjectsTest()
      : document_(Document::Load(
            folder_.Write("My Game.qud.json", DocumentText(R"("held": "text", "number": 7)")))),
        console_(out_, error_, false),
        state_{document_, console_, "ja_JP", 26, {}} {
    DefineHostObjects(engine_, state_);
  }

  // The result's text in UTF-8.
  std::string Text(const std::string& script) {
    const Evaluation evaluation = engine_.Evaluate(FromUtf8(script), "test");
    EXPECT_TRUE(evaluation.succeeded) << ToUtf8(evaluation.error);
    return ToUtf8(TextOf(evaluation.value).value_or(u"undefined"));
  }

  std::string Uri(const std::string& name) {
    return ToUtf8(FileUriOf(ToNativeForm(folder_.Path() / name)));
  }

  TestFolder folder_;
  Document document_;
  std::ostringstream out_;
  std::ostringstream error_;
  Console console_;
  HostState state_;
  ScriptEngine engine_;
};

TEST_F(HostObjectsTest, MembersAreExactlyTheListedOnes) {
  EXPECT_EQ(Text("Object.keys(qu).sort().join()"),
            "beginPortDebugSession,endDebugSession,getDocumentDOM,languageCode,trace");
  EXPECT_EQ(Text("Object.keys(qu.getDocumentDOM()).sort().join()"),
            "addDataToDocument,asVersion,debugTAVMovie,exportQMV,exportQMVPrivate,"
            "externalLibraryPath,getDataFromDocument,getDebugForQmv,getSelectedDevice,height,path,"
            "playerTarget,removeDataFromDocument,setDebugForQmv,updateConnectedDevices,width");
}

TEST_F(HostObjectsTest, DocumentShowsItsMembers) {
  EXPECT_EQ(Text("qu.languageCode"), "ja_JP");
  EXPECT_EQ(Text("qu.getDocumentDOM().width + qu.getDocumentDOM().height"), "1280");
  EXPECT_EQ(Text("qu.getDocumentDOM().playerTarget + qu.getDocumentDOM().asVersion"), "Android3");
  EXPECT_EQ(FromUtf8(Text("qu.getDocumentDOM().path")),
            ToNativeForm(folder_.Path() / "My Game.qud.json"));
}

TEST_F(HostObjectsTest, KeyThatIsNotHeldIsTheNumberZero) {
  EXPECT_EQ(Text("qu.getDocumentDOM().getDataFromDocument('gone') === 0"), "true");
  EXPECT_EQ(Text("qu.getDocumentDOM().getDataFromDocument('held')"), "text");
  EXPECT_EQ(Text("qu.getDocumentDOM().getDataFromDocument('number') === 7"), "true");
}

TEST_F(HostObjectsTest, DataIsAddedAndRemoved) {
  Text("qu.getDocumentDOM().addDataToDocument(\"k\", \"string\", \"Ü 値 🎮\");");
  EXPECT_EQ(Text("qu.getDocumentDOM().getDataFromDocument('k')"), "Ü 値 🎮");
  EXPECT_EQ(*document_.Data("k"), "Ü 値 🎮");
  Text("qu.getDocumentDOM().removeDataFromDocument('k');");
  EXPECT_EQ(document_.Data("k"), std::nullopt);
}

TEST_F(HostObjectsTest, DataKeepsItsType) {
  Text(
      "var d = qu.getDocumentDOM(); d.addDataToDocument('i', 'integer', 3);"
      "d.addDataToDocument('d', 'double', 0.5);");
  EXPECT_EQ(document_.Data("i")->dump(), "3");
  EXPECT_EQ(document_.Data("d")->dump(), "0.5");
}

TEST_F(HostObjectsTest, UnknownTypeOfDataIsAScriptError) {
  const Evaluation evaluation =
      engine_.Evaluate(u"qu.getDocumentDOM().addDataToDocument('k', 'bytes', 'x');", "test");
  EXPECT_FALSE(evaluation.succeeded);
  EXPECT_THAT(ToUtf8(evaluation.error), HasSubstr("not \"bytes\""));
}

TEST_F(HostObjectsTest, ExportWritesTheMovie) {
  EXPECT_EQ(Text("qu.getDocumentDOM().exportQMVPrivate('" + Uri("My Game.qmv") + "', 'true')"),
            "1");
  EXPECT_EQ(folder_.Read("My Game.qmv").substr(0, 5), "QMV\x1A{");
  EXPECT_EQ(Text("qu.getDocumentDOM().exportQMV('" + Uri("Scene 1.qmv") + "', 'true')"), "0");
  EXPECT_EQ(folder_.Read("Scene 1.qmv").substr(0, 3), "QMV");
}

TEST_F(HostObjectsTest, FailedExportIsToldAndReported) {
  EXPECT_EQ(Text("qu.getDocumentDOM().exportQMVPrivate('" + Uri("gone/a.qmv") + "', 'true')"), "0");
  EXPECT_EQ(Text("qu.getDocumentDOM().exportQMV('" + Uri("gone/a.qmv") + "', 'true')"), "1");
  EXPECT_THAT(error_.str(), HasSubstr("The movie cannot be exported: "));
}

TEST_F(HostObjectsTest, DebugFlagIsSwitched) {
  EXPECT_EQ(Text("qu.getDocumentDOM().getDebugForQmv() === false"), "true");
  Text("qu.getDocumentDOM().setDebugForQmv(true,false);");
  EXPECT_EQ(Text("qu.getDocumentDOM().getDebugForQmv() === true"), "true");
}

TEST_F(HostObjectsTest, FirstReportedDeviceIsSelected) {
  EXPECT_EQ(Text("qu.getDocumentDOM().getSelectedDevice('android') === 0"), "true");
  Text("qu.getDocumentDOM().updateConnectedDevices('emulator-5554:R58M:', 'android');");
  EXPECT_EQ(Text("qu.getDocumentDOM().getSelectedDevice('android')"), "emulator-5554");
}

TEST_F(HostObjectsTest, LaunchStartsTheLauncherWithWhatItIsGiven) {
  const fs::path launcher = folder_.Write("wep", "#!/bin/sh\necho \"$*\" >\"$0.seen\"\n");
  fs::permissions(launcher, fs::perms::owner_all);
  ProcessFamily family;

  EXPECT_EQ(Text("qu.getDocumentDOM().debugTAVMovie('" + launcher.string() +
                 "', '/kit/runtimes/tav/win', '/g/Game-app.xml', 'true', 'mobileDevice', '', '', "
                 "'480x800:480x800', -1, '', '/ext', '', '7836')"),
            "0");

  ASSERT_TRUE(family.WaitForProgram("wep"));
  EXPECT_EQ(folder_.Read("wep.seen"),
            "/g/Game-app.xml -runtime /kit/runtimes/tav/win -debug -profile mobileDevice -extdir "
            "/ext -screensize 480x800:480x800 -Xsimulation 7836\n");
}

TEST_F(HostObjectsTest, LauncherThatCannotBeStartedIsToldAndRefused) {
  EXPECT_EQ(Text("qu.getDocumentDOM().debugTAVMovie('/gone/wep', '', '/g', 'false', '', '', '', "
                 "'', -1, '', '', '', '')"),
            "1");
  EXPECT_EQ(error_.str(), "The launcher cannot be started: /gone/wep: No such file or directory\n");
}

TEST_F(HostObjectsTest, TracesAndDebugSessionsReachTheUser) {
  Text("qu.trace('Größe 🎮'); qu.beginPortDebugSession(7936); qu.endDebugSession(true);");
  EXPECT_EQ(error_.str(), "Größe 🎮\nDebug session open on port 7936.\nDebug session closed.\n");
}

TEST(LibraryPathTest, PiecesBecomeAbsoluteFromTheDocumentsFolder) {
  const TestFolder folder;
  Document document = Document::Load(
      folder.Write("a.qud.json", R"({"playerTarget": "Android", "stage": {"width": 1, "height": 1},
                                     "externalLibraryPath": "ext/a.zux;;/lib/b.zux"})"));
  std::ostringstream sink;
  Console console(sink, sink, false);
  HostState state{document, console, "en_US", 26, {}};
  ScriptEngine engine;
  DefineHostObjects(engine, state);
  EXPECT_EQ(TextOf(engine.Evaluate(u"qu.getDocumentDOM().externalLibraryPath", "test").value),
            ToNativeForm(folder.Path() / "ext" / "a.zux") + u";\\lib\\b.zux;");
}

}  // namespace
}  // namespace qutav::host
