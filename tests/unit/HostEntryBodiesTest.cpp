#include "PublishableDocumentTest.h"
#include "framework/CPropertySheet.h"
#include "win/MoreshJSExtension.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Pair;
using ::testing::SizeIs;

constexpr char16_t kListOfDevices[] =
    u"qu.getDocumentDOM().updateConnectedDevices(\"SER1:\",\"android\");";

// The seven functions as the host got them, over a document that lacks nothing.
class HostEntryBodiesTest : public PublishableDocumentTest {
 protected:
  HostEntryBodiesTest() {
    const HostTable table = host.Table();
    HostEnvironment = HostTable();
    KR_InitWrapper(table.words.data(), sizeof(table.words));
    host.data[keys::kMovieFolder] = u"C:/m/";
    frontEnd.onSheet = [this](CPropertySheet& sheet) {
      sheetPages.push_back(sheet.GetActiveIndex());
    };
  }

  std::int32_t Call(const FakeHost::Defined& function, void* context, void* object) {
    const HostValue document = host.Text(documentUri);
    const HostValue movie = host.Text(movieUri);
    const bool movieFirst = function.name == u"TestMovie";
    const HostValue arguments[] = {movieFirst ? movie : document, movieFirst ? document : movie,
                                   host.Text(version), host.Text(u"mobileDevice")};
    HostValue result = 0;
    return function.function(context, object, function.argumentCount, arguments, &result);
  }

  std::int32_t Call(const std::u16string& name) {
    for (const FakeHost::Defined& function : host.defined) {
      if (function.name == name) return Call(function, &contextWord, &objectWord);
    }
    ADD_FAILURE() << "not defined";
    return -1;
  }

  // What the host was asked to do, for whichever function did it.
  std::vector<std::u16string> Requests() const {
    std::vector<std::u16string> requests;
    for (const std::u16string& script : host.scripts) {
      for (const char16_t* request :
           {u"getSelectedDevice", u"DebugSession", u"updateConnectedDevices", u"exportQMV"}) {
        if (script.find(request) != script.npos) requests.push_back(script);
      }
    }
    return requests;
  }
  std::vector<std::string> Launches() const {
    std::vector<std::string> launches;
    for (const auto& script : host.ScriptsBeginning(u"qu.getDocumentDOM().debugTAVMovie(")) {
      launches.push_back(ToUtf8(script));
    }
    return launches;
  }

  std::vector<int> sheetPages;
  int contextWord = 0;
  int objectWord = 0;
};

TEST_F(HostEntryBodiesTest, PublishPackagesAndAsksForNoDevice) {
  EXPECT_EQ(Call(u"Publish"), 1);

  EXPECT_THAT(PackagerCommands(), SizeIs(1));
  EXPECT_THAT(Requests(), IsEmpty());
  EXPECT_THAT(sheetPages, IsEmpty());
}

TEST_F(HostEntryBodiesTest, TestOnDevicePackagesForTheSelectedDeviceWithoutASession) {
  EXPECT_EQ(Call(u"TestOnDevice"), 1);

  EXPECT_THAT(PackagerCommands(), ElementsAre(Not(HasSubstr(" -listen "))));
  EXPECT_THAT(Requests(),
              ElementsAre(u"qu.getDocumentDOM().getSelectedDevice(\"android\");", kListOfDevices,
                          u"qu.getDocumentDOM().exportQMVPrivate(\"file:///C:/m/Game.qmv\", "
                          u"\"true\");"));
}

TEST_F(HostEntryBodiesTest, DebugOnDevicePackagesForTheSelectedDeviceAndBeginsASession) {
  EXPECT_EQ(Call(u"DebugOnDevice"), 1);

  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr(" -target apk-debug -listen 7936 ")));
  EXPECT_THAT(Requests(), Contains(u"qu.getDocumentDOM().getSelectedDevice(\"android\");"));
  EXPECT_EQ(host.scripts.back(), u"qu.beginPortDebugSession(7936);");
}

TEST_F(HostEntryBodiesTest, AFailedDebugOnDeviceEndsTheSession) {
  host.exportResult = 0;

  EXPECT_EQ(Call(u"DebugOnDevice"), 1);

  EXPECT_EQ(host.scripts.back(), u"qu.endDebugSession(true)");
}

TEST_F(HostEntryBodiesTest, OpenSettingDialogShowsTheSheetOnItsGeneralPage) {
  EXPECT_EQ(Call(u"OpenSettingDialog"), 1);

  EXPECT_THAT(sheetPages, ElementsAre(0));
  EXPECT_THAT(Requests(), IsEmpty());
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(HostEntryBodiesTest, GetConnectedDevicesTellsTheHostAndDoesNothingElse) {
  EXPECT_EQ(Call(u"GetConnectedDevices"), 1);

  EXPECT_THAT(Requests(), ElementsAre(kListOfDevices));
  EXPECT_THAT(PackagerCommands(), IsEmpty());
  EXPECT_THAT(sheetPages, IsEmpty());
}

TEST_F(HostEntryBodiesTest, TestMovieLaunchesWithoutTheDebugger) {
  EXPECT_EQ(Call(u"TestMovie"), 1);

  EXPECT_THAT(Launches(), ElementsAre(HasSubstr("\"C:/m/Game-app.xml\", \"false\", ")));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(HostEntryBodiesTest, DebugMovieLaunchesWithTheDebugger) {
  EXPECT_EQ(Call(u"DebugMovie"), 1);

  EXPECT_THAT(Launches(), ElementsAre(HasSubstr("\"C:/m/Game-app.xml\", \"true\", ")));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(HostEntryBodiesTest, EveryFunctionSpeaksToTheHostWithTheWordsOfItsOwnCallOnly) {
  int contexts[7] = {};
  int objects[7] = {};
  ASSERT_THAT(host.defined, SizeIs(7));

  for (std::size_t i = 0; i < 7; ++i) {
    host.scripts.clear();
    host.evaluationWords.clear();
    host.conversionContexts.clear();

    Call(host.defined[i], &contexts[i], &objects[i]);

    EXPECT_EQ(host.scripts.front(), u"qu.languageCode;");
    EXPECT_EQ(host.evaluationWords.size(), host.scripts.size());
    EXPECT_THAT(host.evaluationWords, Each(Pair(&contexts[i], &objects[i])));
    EXPECT_THAT(host.conversionContexts, Not(IsEmpty()));
    EXPECT_THAT(host.conversionContexts, Each(&contexts[i]));
  }
}

}  // namespace
}  // namespace qutav::test
