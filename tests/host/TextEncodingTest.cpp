#include <gtest/gtest.h>

#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

TEST(TextEncodingTest, SurrogatePairBecomesFourBytesOfUtf8) {
  EXPECT_EQ(ToUtf8(u"a\U0001F3AEz"), "a\xF0\x9F\x8E\xAEz");
  EXPECT_EQ(FromUtf8("a\xF0\x9F\x8E\xAEz"), u"a\U0001F3AEz");
}

TEST(TextEncodingTest, LoneSurrogateBecomesReplacementInUtf8) {
  EXPECT_EQ(ToUtf8(u"a\xD83D"), "a\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(u"\xDFAE\xD83D"), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(TextEncodingTest, EachInvalidByteBecomesReplacement) {
  EXPECT_EQ(FromUtf8("a\xFFz"), u"a\xFFFDz");
  EXPECT_EQ(FromUtf8("\xE3\x81"), u"\xFFFD\xFFFD");
  EXPECT_EQ(FromUtf8("\xC0\x80"), u"\xFFFD\xFFFD");
}

TEST(TextEncodingTest, EncodedSurrogateIsNoUtf8) {
  EXPECT_EQ(FromUtf8("\xED\xA0\xBD"), u"\xFFFD\xFFFD\xFFFD");
}

TEST(TextEncodingTest, OverlongAndTooGreatSequencesAreRefused) {
  EXPECT_EQ(FromUtf8("\xE0\x80\xAF"), u"\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), u"\xFFFD\xFFFD\xFFFD\xFFFD");
}

TEST(TextEncodingTest, ScriptBytesEncodeEachUnitByItself) {
  EXPECT_EQ(ToScriptBytes(u"\U0001F3AE"), "\xED\xA0\xBC\xED\xBE\xAE");
  EXPECT_EQ(FromScriptBytes("\xED\xA0\xBC\xED\xBE\xAE"), u"\U0001F3AE");
}

TEST(TextEncodingTest, LoneSurrogateSurvivesAsScriptBytes) {
  EXPECT_EQ(FromScriptBytes(ToScriptBytes(u"x\xD83Dy")), u"x\xD83Dy");
}

TEST(TextEncodingTest, ScriptBytesMayHoldFourByteSequences) {
  EXPECT_EQ(FromScriptBytes("\xF0\x9F\x8E\xAE"), u"\U0001F3AE");
}

}  // namespace
}  // namespace qutav::host
