#include "DocumentTest.h"
#include "win/DocumentContext.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::IsEmpty;

constexpr char16_t kFolderMissing[] =
    u"The destination folder for publishing qmv file does not exist.";

// A movie URI of that many units in the folder of the document.
std::u16string MovieUriOfLength(std::size_t length) {
  const std::u16string start = u"file:///C:/m/";
  return start + std::u16string(length - start.size() - 4, u'a') + u".qmv";
}

class DocumentContextTest : public DocumentTest {};

TEST_F(DocumentContextTest, ThePathsAreFilledFromTheArguments) {
  movieUri = u"file:///C:/m/My%20Game.v2.qmv";

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(DocumentPaths.MovieUri.Text(), u"file:///C:/m/My%20Game.v2.qmv");
  EXPECT_EQ(DocumentPaths.DocumentPath.Text(), u"C:/docs/Game.qud");
  EXPECT_EQ(DocumentPaths.MoviePath.Text(), u"C:\\m\\My Game.v2.qmv");
  EXPECT_EQ(DocumentPaths.MovieBaseName.Text(), u"My Game.v2");
  EXPECT_EQ(DocumentPaths.MovieFolder.Text(), u"C:/m/");
  EXPECT_EQ(DocumentPaths.RuntimeKitName.Text(), u"TAV26.0");
  EXPECT_EQ(DocumentPaths.LaunchPath.Text(), u"C:/host/");
  EXPECT_EQ(DocumentPaths.DescriptorPath.Text(), u"C:/m/My Game.v2-app.xml");
}

TEST_F(DocumentContextTest, AllPathsAreClearedFirst) {
  DocumentPaths.ActiveDescriptorPath = u"C:/old/Old-app.xml";

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(DocumentPaths.ActiveDescriptorPath.Text(), u"");
}

TEST_F(DocumentContextTest, FourKeysOverwriteWhatTheDocumentHolds) {
  host.data = {{u"qmv.folder.path", u"C:/stored/"}, {u"quorl.qmv.basename", u"Stored"}};
  SettingsSet(keys::kLaunchPath, u"C:/elsewhere/");
  SettingsSet(keys::kRuntimeKit, u"TAV1.0");

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(SettingsGet(u"quorl.launch.path"), u"C:/host/");
  EXPECT_EQ(SettingsGet(u"qmv.folder.path"), u"C:/m/");
  EXPECT_EQ(SettingsGet(u"quorl.qmv.basename"), u"Game");
  EXPECT_EQ(SettingsGet(u"moresh.ysk.path"), u"TAV26.0");
}

TEST_F(DocumentContextTest, TheSettingsAreResetAndThenLoadedFromTheDocument) {
  SettingsSet(keys::kWindowType, u"opaque");
  SettingsSet(keys::kPublishType, u"of the command before");
  SettingsSet(keys::kAdbOption, u"launch");
  host.data[keys::kPublishType] = u"release";

  EXPECT_TRUE(Prepare());

  EXPECT_FALSE(SettingsMap.contains(keys::kWindowType));
  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"launch");
}

TEST_F(DocumentContextTest, TheTextOfTheVersionIsNotChecked) {
  version = u"no \"version\" at all";

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(SettingsGet(keys::kRuntimeKit), u"TAVno \"version\" at all");
}

TEST_F(DocumentContextTest, AVersionWithoutATextStandsForTheFirstLevel) {
  EXPECT_TRUE(PrepareDocumentContext(call, host.Text(documentUri), host.Text(movieUri), 0));

  EXPECT_EQ(DocumentPaths.RuntimeKitName.Text(), u"TAV1.0");
  EXPECT_EQ(SettingsGet(keys::kRuntimeKit), u"TAV1.0");
}

TEST_F(DocumentContextTest, AnEmptyVersionLeavesTheBareName) {
  version = u"";

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(SettingsGet(keys::kRuntimeKit), u"TAV");
}

TEST_F(DocumentContextTest, AKitNameIsCutAt63Units) {
  version = std::u16string(80, u'1');

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(SettingsGet(keys::kRuntimeKit), u"TAV" + std::u16string(60, u'1'));
}

TEST_F(DocumentContextTest, OnlyTheFirst1024UnitsOfTheHostsFileNameCount) {
  const std::u16string folder = u"C:\\" + std::u16string(900, u'f') + u"\\";
  folders.hostExecutable = folder + std::u16string(150, u'g') + u"\\Quorl.exe";

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(DocumentPaths.LaunchPath.Text(), u"C:/" + std::u16string(900, u'f') + u"/");
}

TEST_F(DocumentContextTest, AMovieUriOf260UnitsIsTaken) {
  movieUri = MovieUriOfLength(260);

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(DocumentPaths.MovieUri.Text(), movieUri.substr(0, 259));
}

TEST_F(DocumentContextTest, AMovieUriOf261UnitsIsRefusedInSilence) {
  movieUri = MovieUriOfLength(261);

  EXPECT_FALSE(Prepare());

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DocumentContextTest, ADocumentUriOf261UnitsIsRefusedInSilence) {
  documentUri = MovieUriOfLength(261);

  EXPECT_FALSE(Prepare());

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DocumentContextTest, ADocumentUriOf260UnitsIsTaken) {
  documentUri = MovieUriOfLength(260);

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(DocumentPaths.DocumentPath.Text(), documentUri.substr(8));
}

TEST_F(DocumentContextTest, TheLengthThatTheHostReportsDecidesAndNotTheText) {
  for (const std::u16string& uri : {documentUri, movieUri}) {
    host.onLength = [&uri](const std::u16string& text) { return text == uri ? 261u : 1u; };
    EXPECT_FALSE(Prepare());

    host.onLength = [&uri](const std::u16string& text) { return text == uri ? 260u : 1u; };
    EXPECT_TRUE(Prepare());
  }

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DocumentContextTest, AnArgumentWithoutATextIsRefusedInSilence) {
  const HostValue text = host.Text(movieUri);

  EXPECT_FALSE(PrepareDocumentContext(call, 0, text, text));
  EXPECT_FALSE(PrepareDocumentContext(call, text, 0, text));

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DocumentContextTest, ARefusedArgumentLeavesPathsAndSettingsAsTheyWere) {
  DocumentPaths.MovieUri = u"of the command before";
  SettingsSet(keys::kWindowType, u"opaque");
  movieUri = MovieUriOfLength(261);

  EXPECT_FALSE(Prepare());

  EXPECT_EQ(DocumentPaths.MovieUri.Text(), u"of the command before");
  EXPECT_EQ(SettingsGet(keys::kWindowType), u"opaque");
}

TEST_F(DocumentContextTest, AHostThatConvertsNoTextIsRefusedInSilence) {
  HostEnvironment.words[19] = 0;

  EXPECT_FALSE(Prepare());

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DocumentContextTest, AHostWithoutPathsForUrisHasNoMovieFolder) {
  HostEnvironment.words[50] = 0;

  EXPECT_FALSE(Prepare());

  EXPECT_EQ(DocumentPaths.MoviePath.Text(), u"");
  EXPECT_EQ(DocumentPaths.DescriptorPath.Text(), u"-app.xml");
}

TEST_F(DocumentContextTest, AMovieOnANetworkShareIsRefusedWithAMessage) {
  host.uriToPath = [](const std::u16string&) { return u"\\\\server\\share\\Game.qmv"; };
  files.PutFolder(u"\\\\server\\share");

  EXPECT_FALSE(Prepare());

  ASSERT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_EQ(frontEnd.messages[0].text,
            u"Publishing to remote network location is not supported. Please update the output "
            u"file path in Publish Settings and try again.");
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kInformation);
}

TEST_F(DocumentContextTest, AMovieFolderThatIsGoneIsToldOnceAndEndsThePreparation) {
  movieUri = u"file:///C:/gone/Game.qmv";
  host.externalLibraryPath = u"C:/docs/a.zux";
  files.Put(u"C:/docs/a.zux");

  EXPECT_FALSE(Prepare());

  ASSERT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_EQ(frontEnd.messages[0].text, kFolderMissing);
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kInformation);
  EXPECT_THAT(ExtensionFilePaths, IsEmpty());
}

TEST_F(DocumentContextTest, AllSlashesBehindTheMovieFolderAreLeftOutWhenItIsSought) {
  host.uriToPath = [](const std::u16string&) { return u"C:\\m\\\\Game.qmv"; };

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(DocumentPaths.MovieFolder.Text(), u"C:/m//");
}

TEST_F(DocumentContextTest, AMessageHasTheProductsTitleAndTheFocusWindowAsOwner) {
  movieUri = u"file:///C:/gone/Game.qmv";

  EXPECT_FALSE(Prepare());

  EXPECT_EQ(frontEnd.messages.at(0).title, u"Zenvoka Kestrow");
  EXPECT_EQ(frontEnd.messages.at(0).owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.messages.at(0).buttons, MessageButtons::kOk);
}

TEST_F(DocumentContextTest, TheSettingsOfAMovieWhoseFolderIsGoneAreFilledAllTheSame) {
  movieUri = u"file:///C:/gone/Game.qmv";

  EXPECT_FALSE(Prepare());

  EXPECT_EQ(SettingsGet(keys::kMovieFolder), u"C:/gone/");
}

TEST_F(DocumentContextTest, TheExternalLibrariesAreScannedLast) {
  host.externalLibraryPath = u"a.zux";
  files.Put(u"C:/docs/a.zux");

  EXPECT_TRUE(Prepare());

  EXPECT_EQ(ExtensionFilePaths, std::vector<std::u16string>{u"C:\\docs\\a.zux"});
  EXPECT_EQ(ExtensionCacheFolder, u"C:\\temp\\Game_ZUX_Cache\\");
}

}  // namespace
}  // namespace qutav::test
