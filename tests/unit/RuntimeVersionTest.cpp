#include "ServicesTest.h"
#include "support/RuntimeVersion.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RuntimeVersionTest : public ServicesTest {
 protected:
  // Compares a level with the current one.
  static int Compare(const std::u16string& level, const std::u16string& current) {
    SettingsSet(keys::kRuntimeKit, current);
    return CompareRuntimeVersion(level);
  }
};

TEST_F(RuntimeVersionTest, ALevelIsCutAtItsDots) {
  EXPECT_THAT(ParseRuntimeVersion(u"TAV26.0"), ElementsAre(26, 0));
  EXPECT_THAT(ParseRuntimeVersion(u"TAV3.7.1"), ElementsAre(3, 7, 1));
}

TEST_F(RuntimeVersionTest, EmptyPiecesAreSkipped) {
  EXPECT_THAT(ParseRuntimeVersion(u""), IsEmpty());
  EXPECT_THAT(ParseRuntimeVersion(u"..."), IsEmpty());
  EXPECT_THAT(ParseRuntimeVersion(u".TAV3..7."), ElementsAre(3, 7));
}

TEST_F(RuntimeVersionTest, ThePrefixGoesFromEveryPieceThatBeginsWithIt) {
  EXPECT_THAT(ParseRuntimeVersion(u"TAV3.TAV7"), ElementsAre(3, 7));
  EXPECT_THAT(ParseRuntimeVersion(u"TAVVAT3"), ElementsAre(3));
  EXPECT_THAT(ParseRuntimeVersion(u"TAV"), ElementsAre(0));
}

TEST_F(RuntimeVersionTest, WhatIsNoNumberCountsAsZero) {
  EXPECT_THAT(ParseRuntimeVersion(u"TA3.tav4.x5.6y"), ElementsAre(0, 0, 0, 6));
  EXPECT_THAT(ParseRuntimeVersion(u"TAVX3"), ElementsAre(0));
}

TEST_F(RuntimeVersionTest, EqualLevelsGiveZero) {
  EXPECT_EQ(Compare(u"TAV26.0", u"TAV26.0"), 0);
  EXPECT_EQ(Compare(u"TAV3.7", u"TAV3.7.0"), 0);
  EXPECT_EQ(Compare(u"TAV3.7.0.0", u"TAV3.7"), 0);
}

TEST_F(RuntimeVersionTest, ALowerLevelThanTheCurrentOneGivesMinusOne) {
  EXPECT_EQ(Compare(u"TAV26.0", u"TAV33.0"), -1);
  EXPECT_EQ(Compare(u"TAV3.7", u"TAV3.7.1"), -1);
}

TEST_F(RuntimeVersionTest, AHigherLevelThanTheCurrentOneGivesOne) {
  EXPECT_EQ(Compare(u"TAV26.0", u"TAV3.8"), 1);
  EXPECT_EQ(Compare(u"TAV3.7.1", u"TAV3.7"), 1);
}

TEST_F(RuntimeVersionTest, LevelsAreComparedAsNumbers) {
  EXPECT_EQ(Compare(u"TAV3.10", u"TAV3.9"), 1);
  EXPECT_EQ(Compare(u"TAV3.9", u"TAV3.10"), -1);
}

TEST_F(RuntimeVersionTest, TheLevelOfACommandWithoutVersionLiesBelowAllTestedLevels) {
  for (const char16_t* level :
       {u"TAV3.7", u"TAV3.8", u"TAV14.0", u"TAV20.0", u"TAV26.0", u"TAV33.0"}) {
    EXPECT_EQ(Compare(level, u"TAV1.0"), 1);
  }
}

TEST_F(RuntimeVersionTest, AnEmptyCurrentLevelCountsAsZeros) {
  EXPECT_EQ(Compare(u"TAV1.0", u""), 1);
  EXPECT_EQ(Compare(u"TAV0.0", u""), 0);
}

TEST_F(RuntimeVersionTest, ALevelIsReachedFromItselfUpwards) {
  SettingsSet(keys::kRuntimeKit, u"TAV20.0");

  EXPECT_TRUE(RuntimeIsAtLeast(u"TAV14.0"));
  EXPECT_TRUE(RuntimeIsAtLeast(u"TAV20.0"));
  EXPECT_FALSE(RuntimeIsAtLeast(u"TAV20.1"));
}

}  // namespace
}  // namespace qutav::test
