// Debug runs: under the host's debugger or not at all.

#include "LaunchTest.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class DebugMovieTest : public LaunchTest {
 protected:
  void ChooseMobileWithController() {
    profile = u"mobileDevice";
    PutController();
  }
};

TEST_F(DebugMovieTest, TheLaunchersAreKilledFirst) {
  Debug();

  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"taskkill /IM wep.exe /F /T "));
}

TEST_F(DebugMovieTest, TheScriptVersionIsNotAskedFor) {
  host.scriptVersion = u"2";

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(Launches(), SizeIs(1));
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().asVersion"), IsEmpty());
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().exportQMV"), IsEmpty());
}

TEST_F(DebugMovieTest, AControllerWhoseRunTheHostRefusesIsKilledByItsProcessId) {
  ChooseMobileWithController();
  host.launchResult = 1;

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(Launches(), ElementsAre(EndsWith("\"7836\");")));
  EXPECT_THAT(Commands(), ElementsAre(HasSubstr("SimController"), "taskkill /PID 1001 /F /T"));
}

TEST_F(DebugMovieTest, TheAnswerTwoIsARefusalLikeAnyOther) {
  ChooseMobileWithController();
  host.launchResult = 2;

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(Commands(), ElementsAre(HasSubstr("SimController"), "taskkill /PID 1001 /F /T"));
}

TEST_F(DebugMovieTest, AControllerThatWasFoundAndNotStartedIsKilledAsProcessZero) {
  PutController();
  host.launchResult = 1;

  Debug();

  EXPECT_THAT(Commands(), ElementsAre("taskkill /PID 0 /F /T"));
}

TEST_F(DebugMovieTest, TheControllerStaysUpWhenTheHostLaunches) {
  ChooseMobileWithController();

  Debug();

  EXPECT_THAT(Commands(), ElementsAre(HasSubstr("SimController")));
}

TEST_F(DebugMovieTest, EachDebugRunUsesUpAPort) {
  ChooseMobileWithController();

  Debug();
  Debug();

  EXPECT_THAT(Launches(), ElementsAre(EndsWith("\"7836\");"), EndsWith("\"7837\");")));
}

TEST_F(DebugMovieTest, TheEvaluationsStatusIsTheFunctions) {
  host.onStatus = [](const std::u16string& script) {
    return script.find(u"debugTAVMovie") == script.npos ? 1 : 0;
  };

  EXPECT_EQ(Debug(), 0);
}

TEST_F(DebugMovieTest, AHostThatEvaluatesNothingLaunchesNothing) {
  HostEnvironment.words[55] = 0;

  EXPECT_EQ(Debug(), 0);

  EXPECT_THAT(Launches(), IsEmpty());
  EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(DebugMovieTest, AContextThatCannotBePreparedCountsAsSuccess) {
  movieUri = u"file:///C:/gone/Game.qmv";

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(Launches(), IsEmpty());
}

TEST_F(DebugMovieTest, ADescriptorThatIsThereIsTakenAlsoForAMovedDocument) {
  host.data[keys::kDocumentPath] = u"C:/docs/Old.qud";
  host.data[keys::kMovieBaseName] = u"Old";
  files.Put(u"C:/m/Old-app.xml", DescriptorText("26.0", "<copyright>other</copyright>"));

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(files.BytesOf(descriptorPath), Not(HasSubstr("other")));
  EXPECT_EQ(SettingsGet(keys::kDocumentPath), u"C:/docs/Old.qud");
}

TEST_F(DebugMovieTest, AMovedDocumentWithoutOneTakesItsDescriptorWithIt) {
  host.data[keys::kDocumentPath] = u"C:/docs/Old.qud";
  host.data[keys::kMovieBaseName] = u"Old";
  files.Put(u"C:/m/Old-app.xml", DescriptorText("26.0", "<copyright>mine</copyright>"));
  files.Delete(descriptorPath);

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(files.BytesOf(descriptorPath), HasSubstr("mine"));
  EXPECT_EQ(SettingsGet(keys::kDocumentPath), u"C:/docs/Game.qud");
}

TEST_F(DebugMovieTest, AMissingDescriptorIsGenerated) {
  files.Delete(descriptorPath);

  EXPECT_EQ(Debug(), 1);

  EXPECT_TRUE(files.HasFile(descriptorPath));
}

TEST_F(DebugMovieTest, ADescriptorThatCannotBeWrittenIsToldAndCountsAsSuccess) {
  files.Delete(descriptorPath);
  files.readOnly.insert(u"C:/m/Game-app.xml");

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(Launches(), IsEmpty());
}

TEST_F(DebugMovieTest, ADescriptorThatCannotBeParsedCountsAsSuccess) {
  files.Put(descriptorPath, "<application");

  EXPECT_EQ(Debug(), 1);

  EXPECT_THAT(Launches(), IsEmpty());
}

TEST_F(DebugMovieTest, ANewDocumentIsTreatedLikeAKnownOne) {
  host.data.erase(keys::kMovieFolder);
  host.data[keys::kOutputType] = u"ipa";

  Debug();

  EXPECT_EQ(SettingsGet(keys::kPublishIpa), u"");
  EXPECT_THAT(
      host.ScriptsBeginning(u"qu.getDocumentDOM().getDataFromDocument(\"com.zenvoka.quorl.lorvath"),
      IsEmpty());
}

TEST_F(DebugMovieTest, ASceneKeepsADescriptorThatIsThere) {
  movieUri = u"file:///C:/m/Game_Scene 1.qmv";
  files.Put(u"C:/m/Game_Scene 1.qmv");
  files.Put(u"C:/m/Game_Scene 1-app.xml", DescriptorText("26.0", "<copyright>old</copyright>"));

  Debug();

  EXPECT_THAT(files.BytesOf(u"C:/m/Game_Scene 1-app.xml"), HasSubstr("old"));
}

}  // namespace
}  // namespace qutav::test
