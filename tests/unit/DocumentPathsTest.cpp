#include <gtest/gtest.h>

#include "win/DocumentPaths.h"

namespace qutav::test {
namespace {

TEST(DocumentPathsTest, TheBaseNameStandsBetweenTheLastBackslashAndTheLastDot) {
  EXPECT_EQ(BaseNameOfPath(u"C:\\games\\Game.qmv"), u"Game");
}

TEST(DocumentPathsTest, TheBaseNameKeepsAllDotsButTheLast) {
  EXPECT_EQ(BaseNameOfPath(u"C:\\a\\b.c.d"), u"b.c");
}

TEST(DocumentPathsTest, APathThatEndsInABackslashADotAndOneLetterComesBackWhole) {
  EXPECT_EQ(BaseNameOfPath(u"C:\\a\\.b"), u"C:\\a\\.b");
}

TEST(DocumentPathsTest, OneCharacterBeforeTheDotIsABaseName) {
  EXPECT_EQ(BaseNameOfPath(u"C:\\a\\b.c"), u"b");
}

TEST(DocumentPathsTest, ADotInAFolderMakesNoBaseName) {
  EXPECT_EQ(BaseNameOfPath(u"C:\\a.b\\c"), u"C:\\a.b\\c");
}

TEST(DocumentPathsTest, APathWithForwardSlashesOnlyHasNoBaseName) {
  EXPECT_EQ(BaseNameOfPath(u"C:/games/Game.qmv"), u"C:/games/Game.qmv");
}

TEST(DocumentPathsTest, ABareNameHasNoBaseName) {
  EXPECT_EQ(BaseNameOfPath(u"Game.qmv"), u"Game.qmv");
  EXPECT_EQ(BaseNameOfPath(u""), u"");
}

TEST(DocumentPathsTest, TheFolderEndsWithTheLastBackslash) {
  EXPECT_EQ(FolderOfPath(u"C:\\games\\my\\Game.qmv"), u"C:\\games\\my\\");
  EXPECT_EQ(FolderOfPath(u"C:\\games\\"), u"C:\\games\\");
}

TEST(DocumentPathsTest, APathWithoutABackslashIsItsOwnFolder) {
  EXPECT_EQ(FolderOfPath(u"C:/games/Game.qmv"), u"C:/games/Game.qmv");
}

TEST(DocumentPathsTest, ThePathTextsHold259Units) {
  const std::u16string text(300, u'x');
  const std::u16string cut(259, u'x');
  DocumentPathTexts paths;

  for (auto* field : {&paths.MovieUri, &paths.DocumentPath, &paths.MoviePath, &paths.MovieBaseName,
                      &paths.MovieFolder, &paths.DescriptorPath, &paths.ActiveDescriptorPath}) {
    *field = text;
    EXPECT_EQ(field->Text(), cut);
  }
}

TEST(DocumentPathsTest, TheLaunchPathHolds1023UnitsAndTheKitNameHolds63) {
  DocumentPathTexts paths;

  paths.LaunchPath = std::u16string(2000, u'x');
  paths.RuntimeKitName = std::u16string(2000, u'x');

  EXPECT_EQ(paths.LaunchPath.Text(), std::u16string(1023, u'x'));
  EXPECT_EQ(paths.RuntimeKitName.Text(), std::u16string(63, u'x'));
}

}  // namespace
}  // namespace qutav::test
