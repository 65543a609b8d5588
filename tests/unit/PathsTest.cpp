#include "ServicesTest.h"
#include "support/Paths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

class PathsTest : public ServicesTest {
 protected:
  static std::u16string LastName(std::u16string text) {
    LastNameOfPath(text);
    return text;
  }
  static std::u16string Decoded(const std::u16string& source) {
    std::u16string target = u"old";
    DecodePercent20(target, source);
    return target;
  }
  static std::u16string Encoded(const std::u16string& source) {
    std::u16string target = u"old";
    EncodeSpacesForUri(target, source);
    return target;
  }
};

TEST_F(PathsTest, TheJavaRuntimeLiesBelowTheCommonFilesFolder) {
  folders.commonProgramFiles = u"C:\\Program Files\\Common Files";
  EXPECT_EQ(CommonJavaPath(), u"C:/Program Files/Common Files/Zenvoka/Zenvoka Kestrow 2020/jre");

  folders.commonProgramFiles = u"D:\\";
  EXPECT_EQ(CommonJavaPath(), u"D:/Zenvoka/Zenvoka Kestrow 2020/jre");
}

TEST_F(PathsTest, WithoutACommonFilesFolderThereIsNoJavaRuntime) {
  folders.commonProgramFiles = u"";

  EXPECT_EQ(CommonJavaPath(), u"");
}

TEST_F(PathsTest, TheMoviesFolderIsShownWithBackslashes) {
  EXPECT_EQ(MovieFolder(), u"");

  SettingsSet(keys::kMovieFolder, u"C:/my docs/games/");
  EXPECT_EQ(MovieFolder(), u"C:\\my docs\\games\\");
}

TEST_F(PathsTest, TheSdkIsTheChosenOneOrTheKitOfTheLevel) {
  SettingsSet(keys::kLaunchPath, u"C:/host/");
  SettingsSet(keys::kRuntimeKit, u"TAV26.0");
  EXPECT_EQ(SdkRoot(), u"C:/host/TAV26.0");

  SettingsSet(keys::kSdkPath, u"D:/sdk");
  EXPECT_EQ(SdkRoot(), u"D:/sdk");
}

TEST_F(PathsTest, TheLastNameStandsBetweenTheLastSlashAndTheLastDot) {
  EXPECT_EQ(LastName(u"C:/docs/My.Game.qmv"), u"My.Game");
  EXPECT_EQ(LastName(u"Game.qmv"), u"Game");
  EXPECT_EQ(LastName(u"docs/Game"), u"Game");
  EXPECT_EQ(LastName(u"docs/"), u"");
  EXPECT_EQ(LastName(u""), u"");
}

TEST_F(PathsTest, ALeadingSlashOrDotIsLeftAlone) {
  EXPECT_EQ(LastName(u"/Game.qmv"), u"/Game");
  EXPECT_EQ(LastName(u".profile"), u".profile");
  EXPECT_EQ(LastName(u"docs/.profile"), u".profile");
}

TEST_F(PathsTest, TheLastNameOfABackslashPathIsOnlyCutAtItsDot) {
  EXPECT_EQ(LastName(u"C:\\docs.old\\Game"), u"C:\\docs");
}

TEST_F(PathsTest, EveryBackslashIsReplaced) {
  std::u16string path = u"\\a\\b/c\\";

  ConvertBackslashes(path, u'#');

  EXPECT_EQ(path, u"#a#b/c#");
  EXPECT_EQ(WithForwardSlashes(u"\\a/b\\"), u"/a/b/");
  EXPECT_EQ(WithBackslashes(u"/a\\b/"), u"\\a\\b\\");
}

TEST_F(PathsTest, AnExtensionReplacesTheLastOne) {
  EXPECT_EQ(ReplaceExtension(u"a.b.c", u"d"), u"a.b.d");
  EXPECT_EQ(ReplaceExtension(u"a.b", u"tar.gz"), u"atar.gz");
}

TEST_F(PathsTest, AnExtensionIsAddedWhereThereIsNone) {
  EXPECT_EQ(ReplaceExtension(u"abc", u".d"), u"abc.d");
  EXPECT_EQ(ReplaceExtension(u"abc", u"d"), u"abc.d");
}

TEST_F(PathsTest, TheLastDotCountsWhereverItStands) {
  EXPECT_EQ(ReplaceExtension(u"C:/docs.old/Game", u"apk"), u"C:/docs.apk");
}

TEST_F(PathsTest, AnEmptyPathOrExtensionChangesNothing) {
  EXPECT_EQ(ReplaceExtension(u"", u"apk"), u"");
  EXPECT_EQ(ReplaceExtension(u"Game.qmv", u""), u"Game.qmv");
}

TEST_F(PathsTest, DecodingGivesBlanksAndDropsStrayPercentSigns) {
  EXPECT_EQ(Decoded(u"a%20b%"), u"a b");
  EXPECT_EQ(Decoded(u"%2%20%%20%41%2020"), u"2  41 20");
}

TEST_F(PathsTest, EncodingForUrisTouchesBlanksOnly) {
  EXPECT_EQ(Encoded(u" a b%\t"), u"%20a%20b%\t");
}

TEST_F(PathsTest, APathBelowAFolderIsNamedFromThere) {
  EXPECT_EQ(MakeRelative(u"C:\\m\\data\\one.xml", u"C:\\m\\"), u"data\\one.xml");
  EXPECT_EQ(MakeRelative(u"C:\\m\\", u"C:\\m\\"), u"");
}

TEST_F(PathsTest, APathBesideAFolderOrInAnotherCaseStaysAsItIs) {
  EXPECT_EQ(MakeRelative(u"C:\\mm\\one.xml", u"C:\\m\\"), u"C:\\mm\\one.xml");
  EXPECT_EQ(MakeRelative(u"C:\\M\\one.xml", u"C:\\m\\"), u"C:\\M\\one.xml");
  EXPECT_EQ(MakeRelative(u"C:\\m", u"C:\\m\\"), u"C:\\m");
}

// As many units as the folder has are cut from the beginning, wherever its text stands.
TEST_F(PathsTest, AFolderInTheMiddleOfAPathCutsThePathsBeginning) {
  EXPECT_EQ(MakeRelative(u"D:\\x\\m\\one.xml", u"\\m\\"), u"x\\m\\one.xml");
}

TEST_F(PathsTest, AnEmptySourceLeavesTheTargetAlone) {
  EXPECT_EQ(Decoded(u""), u"old");
  EXPECT_EQ(Encoded(u""), u"old");
}

TEST_F(PathsTest, EncodingForXmlWritesThePercentSignAsAReference) {
  EXPECT_EQ(EncodeSpacesForXml(u"My Game <&>"), u"My&#37;20Game&#37;20<&>");
  EXPECT_EQ(EncodeSpacesForXml(u""), std::nullopt);
}

TEST_F(PathsTest, ANarrowCopyIsInTheLocalCodePage) {
  EXPECT_EQ(DuplicateNarrow(u"Tr\u00E4ume"), "Tr\xC3\xA4ume");
  EXPECT_EQ(DuplicateNarrow(u""), std::nullopt);
}

TEST_F(PathsTest, OnlyMajorVersionFiveIsTheOlderSystem) {
  folders.majorVersion = 5;
  EXPECT_TRUE(IsOlderWindows());

  folders.majorVersion = 4;
  EXPECT_FALSE(IsOlderWindows());
  folders.majorVersion = 10;
  EXPECT_FALSE(IsOlderWindows());
}

}  // namespace
}  // namespace qutav::test
