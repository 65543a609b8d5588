#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/posix/CommandLine.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

TEST(CommandLineTest, BlanksAndTabsSeparate) {
  EXPECT_THAT(SplitCommandLine(u"java -jar\tKOB.jar  \t x "),
              ElementsAre(u"java", u"-jar", u"KOB.jar", u"x"));
}

TEST(CommandLineTest, QuotesHoldBlanksTogether) {
  EXPECT_THAT(SplitCommandLine(u"adb \"a b c\" d\"e f\"g"),
              ElementsAre(u"adb", u"a b c", u"de fg"));
}

TEST(CommandLineTest, AQuotedProgramEndsAtItsClosingQuote) {
  EXPECT_THAT(SplitCommandLine(u"\"/opt/My Java/bin/java\" -version"),
              ElementsAre(u"/opt/My Java/bin/java", u"-version"));
  EXPECT_THAT(SplitCommandLine(u"\"a\"b c"), ElementsAre(u"a", u"b", u"c"));
}

TEST(CommandLineTest, BackslashesInTheProgramArePlain) {
  EXPECT_THAT(SplitCommandLine(u"C:\\a\\b.exe x"), ElementsAre(u"C:\\a\\b.exe", u"x"));
  EXPECT_THAT(SplitCommandLine(u"\"C:\\a b\\\" x"), ElementsAre(u"C:\\a b\\", u"x"));
}

TEST(CommandLineTest, AQuoteInsideAnUnquotedProgramIsPlain) {
  EXPECT_THAT(SplitCommandLine(u"a\"b c\" d"), ElementsAre(u"a\"b", u"c d"));
}

TEST(CommandLineTest, BackslashesArePlainUnlessAQuoteFollows) {
  EXPECT_THAT(SplitCommandLine(u"p C:\\a\\\\b \"C:\\a b\\c\""),
              ElementsAre(u"p", u"C:\\a\\\\b", u"C:\\a b\\c"));
}

TEST(CommandLineTest, AnOddRunOfBackslashesMakesTheQuotePlain) {
  EXPECT_THAT(SplitCommandLine(u"p a\\\"b a\\\\\\\"b"), ElementsAre(u"p", u"a\"b", u"a\\\"b"));
}

TEST(CommandLineTest, AnEvenRunOfBackslashesLeavesTheQuoteItsMeaning) {
  EXPECT_THAT(SplitCommandLine(u"p \"a b\\\\\" c a\\\\\"b c\""),
              ElementsAre(u"p", u"a b\\", u"c", u"a\\b c"));
}

TEST(CommandLineTest, TwoQuotesInAQuotedPartGiveOneAndEndIt) {
  EXPECT_THAT(SplitCommandLine(u"p \"a\"\"b c\" d"), ElementsAre(u"p", u"a\"b", u"c d"));
}

TEST(CommandLineTest, AnEmptyArgumentStays) {
  EXPECT_THAT(SplitCommandLine(u"p \"\" x \"\""), ElementsAre(u"p", u"", u"x", u""));
}

TEST(CommandLineTest, AnOpenQuoteRunsToTheEnd) {
  EXPECT_THAT(SplitCommandLine(u"p \"a b "), ElementsAre(u"p", u"a b "));
  EXPECT_THAT(SplitCommandLine(u"\"p a"), ElementsAre(u"p a"));
}

TEST(CommandLineTest, BackslashesAtTheEndArePlain) {
  EXPECT_THAT(SplitCommandLine(u"p a\\\\"), ElementsAre(u"p", u"a\\\\"));
  EXPECT_THAT(SplitCommandLine(u"p \\"), ElementsAre(u"p", u"\\"));
  EXPECT_THAT(SplitCommandLine(u"p a\\ b"), ElementsAre(u"p", u"a\\", u"b"));
}

TEST(CommandLineTest, TheTableOfTheMakersOfTheRules) {
  EXPECT_THAT(SplitCommandLine(u"p \"a b c\" d e"), ElementsAre(u"p", u"a b c", u"d", u"e"));
  EXPECT_THAT(SplitCommandLine(u"p \"ab\\\"c\" \"\\\\\" d"),
              ElementsAre(u"p", u"ab\"c", u"\\", u"d"));
  EXPECT_THAT(SplitCommandLine(u"p a\\\\\\b d\"e f\"g h"),
              ElementsAre(u"p", u"a\\\\\\b", u"de fg", u"h"));
  EXPECT_THAT(SplitCommandLine(u"p a\\\\\\\"b c d"), ElementsAre(u"p", u"a\\\"b", u"c", u"d"));
  EXPECT_THAT(SplitCommandLine(u"p a\\\\\\\\\"b c\" d e"),
              ElementsAre(u"p", u"a\\\\b c", u"d", u"e"));
}

TEST(CommandLineTest, ALineThatBeginsWithABlankHasAnEmptyProgram) {
  EXPECT_THAT(SplitCommandLine(u" a"), ElementsAre(u"", u"a"));
  EXPECT_THAT(SplitCommandLine(u""), ElementsAre(u""));
}

}  // namespace
}  // namespace qutav::test
