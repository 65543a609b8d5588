#include <gtest/gtest.h>

#include "host/FileUri.h"

namespace qutav::host {
namespace {

TEST(FileUriTest, BlanksAndReservedCharactersAreEncoded) {
  EXPECT_EQ(FileUriOf(u"\\home\\u\\My Game.qmv"), u"file:///home/u/My%20Game.qmv");
  EXPECT_EQ(FileUriOf(u"\\a#b\\c?d\"e.qmv"), u"file:///a%23b/c%3Fd%22e.qmv");
}

TEST(FileUriTest, TextOutsideAsciiIsEncodedUtf8) {
  EXPECT_EQ(FileUriOf(u"\\\u00DCber.qmv"), u"file:///%C3%9Cber.qmv");
  EXPECT_EQ(FileUriOf(u"\\\u30B2.qmv"), u"file:///%E3%82%B2.qmv");
}

TEST(FileUriTest, PercentSignIsEncoded) {
  EXPECT_EQ(FileUriOf(u"\\100%20.qmv"), u"file:///100%2520.qmv");
}

TEST(FileUriTest, PathsComeBackAsTheyWere) {
  for (const char16_t* path :
       {u"\\home\\u\\My Game.qmv", u"\\\u00DCber uns\\\u30B2\u30FC\u30E0 \U0001F3AE.qmv",
        u"\\100% sure\\a%20b.qmv", u"C:\\Games\\My Game.qmv", u"\\C:\\odd.qmv",
        u"\\\\server\\share\\My Game.qmv", u"\\it's\\\"q\"+&=;,.qmv"}) {
    EXPECT_EQ(PathOfFileUri(FileUriOf(path)), path);
  }
}

TEST(FileUriTest, DriveLosesTheSlashInFrontOfIt) {
  EXPECT_EQ(PathOfFileUri(u"file:///C:/Games/a.qmv"), u"C:\\Games\\a.qmv");
  EXPECT_EQ(PathOfFileUri(u"file:///c|/Games/a.qmv"), u"c:\\Games\\a.qmv");
}

TEST(FileUriTest, OtherSpellingsOfThisMachineAreTaken) {
  EXPECT_EQ(PathOfFileUri(u"FILE://localhost/a/b.qmv"), u"\\a\\b.qmv");
  EXPECT_EQ(PathOfFileUri(u"file:/a/b.qmv"), u"\\a\\b.qmv");
}

TEST(FileUriTest, ForeignHostIsANetworkShare) {
  EXPECT_EQ(PathOfFileUri(u"file://server/share/a.qmv"), u"\\\\server\\share\\a.qmv");
}

TEST(FileUriTest, PercentSignWithoutDigitsStandsForItself) {
  EXPECT_EQ(PathOfFileUri(u"file:///a%zz%4"), u"\\a%zz%4");
}

TEST(FileUriTest, TextThatIsNoUriIsAPath) {
  EXPECT_EQ(PathOfFileUri(u"/a/b%20c"), u"\\a\\b%20c");
  EXPECT_EQ(PathOfFileUri(u""), u"");
}

}  // namespace
}  // namespace qutav::host
