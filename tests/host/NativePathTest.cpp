#include <gtest/gtest.h>

#include "host/NativePath.h"

namespace qutav::host {
namespace {

TEST(NativePathTest, PosixPathTakesBackslashes) {
  EXPECT_EQ(ToNativeForm("/home/u/My Game.qmv"), u"\\home\\u\\My Game.qmv");
  EXPECT_EQ(FromNativeForm(u"\\home\\u\\My Game.qmv"), "/home/u/My Game.qmv");
}

TEST(NativePathTest, JapaneseNamesPassBothWays) {
  const std::filesystem::path path = "/\xE3\x82\xB2/\xC3\x9C.qmv";
  EXPECT_EQ(ToNativeForm(path), u"\\\u30B2\\\u00DC.qmv");
  EXPECT_EQ(FromNativeForm(ToNativeForm(path)), path);
}

TEST(NativePathTest, BackslashInANameHasNoNativeForm) {
  EXPECT_FALSE(HasNativeForm("/home/a\\b.qmv"));
  EXPECT_FALSE(HasNativeForm("/home/\xFF.qmv"));
  EXPECT_TRUE(HasNativeForm("/home/\xC3\x9C b.qmv"));
}

TEST(NativePathTest, SettingsFormKeepsForwardSlashes) {
  EXPECT_EQ(ToSettingsForm("/keys/my key.p12"), "/keys/my key.p12");
}

}  // namespace
}  // namespace qutav::host
