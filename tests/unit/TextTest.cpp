#include <gtest/gtest.h>

#include <climits>

#include "platform/Text.h"

namespace qutav::test {
namespace {

// Every boundary of the encodings: first and last code point of each length.
constexpr char32_t kBoundaries[] = {0x0,    0x7F,   0x80,   0x7FF,   0x800,
                                    0xD7FF, 0xE000, 0xFFFF, 0x10000, 0x10FFFF};

std::u16string Utf16Of(char32_t point) {
  if (point < 0x10000) return {static_cast<char16_t>(point)};
  point -= 0x10000;
  return {static_cast<char16_t>(0xD800 | (point >> 10)),
          static_cast<char16_t>(0xDC00 | (point & 0x3FF))};
}

// So many replacement characters.
std::u16string Replaced(std::size_t count) { return std::u16string(count, u'\uFFFD'); }

TEST(TextTest, TextOfEveryLengthGoesToUtf8) {
  EXPECT_EQ(ToUtf8(u"a\u00E4\u3042\U0001F600"), "a\xC3\xA4\xE3\x81\x82\xF0\x9F\x98\x80");
  EXPECT_EQ(FromUtf8("a\xC3\xA4\xE3\x81\x82\xF0\x9F\x98\x80"), u"a\u00E4\u3042\U0001F600");
}

TEST(TextTest, TheBoundariesOfTheEncodingsSurviveARoundTrip) {
  for (const char32_t point : kBoundaries) {
    EXPECT_EQ(FromUtf8(ToUtf8(Utf16Of(point))), Utf16Of(point))
        << static_cast<std::uint32_t>(point);
  }
}

TEST(TextTest, NulIsACharacterLikeAnyOther) {
  EXPECT_EQ(ToUtf8(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
  EXPECT_EQ(FromUtf8(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
}

TEST(TextTest, UnpairedSurrogatesAreReplaced) {
  const char16_t high = 0xD800;
  const char16_t low = 0xDC00;
  EXPECT_EQ(ToUtf8(std::u16string{high}), "\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(std::u16string{low}), "\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(std::u16string{high, u'a'}),
            "\xEF\xBF\xBD"
            "a");
  EXPECT_EQ(ToUtf8(std::u16string{high, high, low}), "\xEF\xBF\xBD\xF0\x90\x80\x80");
  EXPECT_EQ(ToUtf8(std::u16string{low, high}), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(TextTest, ContinuationBytesWithoutALeadAreReplacedOneByOne) {
  EXPECT_EQ(FromUtf8("a\x80\xBF"
                     "b"),
            u"a" + Replaced(2) + u"b");
}

TEST(TextTest, BytesThatNeverLeadAreReplaced) {
  for (const char* byte : {"\xC0", "\xC1", "\xF5", "\xF8", "\xFC", "\xFE", "\xFF"}) {
    EXPECT_EQ(FromUtf8(byte), Replaced(1));
  }
}

TEST(TextTest, SequencesCutOffAtTheEndAreReplacedByteByByte) {
  EXPECT_EQ(FromUtf8("\xC3"), Replaced(1));
  EXPECT_EQ(FromUtf8("\xE3\x81"), Replaced(2));
  EXPECT_EQ(FromUtf8("\xF0\x9F\x98"), Replaced(3));
}

TEST(TextTest, SequencesBrokenOffByAnotherCharacterKeepThatCharacter) {
  EXPECT_EQ(FromUtf8("\xC3("
                     "x"),
            Replaced(1) + u"(x");
  EXPECT_EQ(FromUtf8("\xE3\x81"
                     "ab"),
            Replaced(2) + u"ab");
  EXPECT_EQ(FromUtf8("\xF0\x9F\x98\xC3\xA4"), Replaced(3) + u"\u00E4");
}

TEST(TextTest, OverlongSequencesAreReplaced) {
  EXPECT_EQ(FromUtf8("\xC0\xAF"), Replaced(2));
  EXPECT_EQ(FromUtf8("\xE0\x80\xAF"), Replaced(3));
  EXPECT_EQ(FromUtf8("\xE0\x9F\xBF"), Replaced(3));
  EXPECT_EQ(FromUtf8("\xF0\x8F\xBF\xBF"), Replaced(4));
}

TEST(TextTest, EncodedSurrogatesAreReplaced) {
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), Replaced(3));
  EXPECT_EQ(FromUtf8("\xED\xBF\xBF"), Replaced(3));
  EXPECT_EQ(FromUtf8("\xED\xA0\x80\xED\xB0\x80"), Replaced(6));
}

TEST(TextTest, SequencesBehindTheLastCodePointAreReplaced) {
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), Replaced(4));
}

TEST(TextTest, DecimalTextHasAMinusSignOnlyWhereNeeded) {
  EXPECT_EQ(ToDecimal(0), u"0");
  EXPECT_EQ(ToDecimal(-7936), u"-7936");
  EXPECT_EQ(ToDecimal(4294967295), u"4294967295");
}

TEST(TextTest, ALeadingIntegerIsParsed) {
  EXPECT_EQ(ParseDecimal(u"7936"), 7936);
  EXPECT_EQ(ParseDecimal(u" \t\r\n\v\f+12x"), 12);
  EXPECT_EQ(ParseDecimal(u"-3.9"), -3);
  EXPECT_EQ(ParseDecimal(u"007"), 7);
}

TEST(TextTest, WhatIsNoIntegerParsesAsZero) {
  for (const char16_t* text : {u"", u" ", u"-", u"+", u"x1", u"- 1", u"+-1", u"\uFF11"}) {
    EXPECT_EQ(ParseDecimal(text), 0);
  }
}

TEST(TextTest, NumbersOutOfRangeParseAsTheNearest) {
  EXPECT_EQ(ParseDecimal(u"2147483647"), INT_MAX);
  EXPECT_EQ(ParseDecimal(u"2147483648"), INT_MAX);
  EXPECT_EQ(ParseDecimal(u"-2147483648"), INT_MIN);
  EXPECT_EQ(ParseDecimal(u"-99999999999999999999999999"), INT_MIN);
}

TEST(TextTest, OnlyAsciiLettersChangeCase) {
  EXPECT_EQ(ToLowerAscii(u"AZ[@`{\u00C4"), u"az[@`{\u00C4");
  EXPECT_TRUE(EqualsIgnoringCase(u"Image96X96", u"iMAGE96x96"));
  EXPECT_FALSE(EqualsIgnoringCase(u"\u00C4", u"\u00E4"));
  EXPECT_FALSE(EqualsIgnoringCase(u"a", u"ab"));
}

TEST(TextTest, ReplacingGoesFromLeftToRightAndNotOverItsResult) {
  EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"b"), u"ba");
  EXPECT_EQ(ReplaceAll(u"a.a", u"a", u"aa"), u"aa.aa");
  EXPECT_EQ(ReplaceAll(u"abc", u"b", u""), u"ac");
  EXPECT_EQ(ReplaceAll(u"abc", u"", u"x"), u"abc");
}

TEST(TextTest, TrimmingTakesTheFourXmlSpacesFromBothEnds) {
  EXPECT_EQ(Trimmed(u" \t\r\n a b \n\r\t "), u"a b");
  EXPECT_EQ(Trimmed(u" \n"), u"");
  EXPECT_EQ(Trimmed(u"\v\u00A0a"), u"\v\u00A0a");
}

}  // namespace
}  // namespace qutav::test
