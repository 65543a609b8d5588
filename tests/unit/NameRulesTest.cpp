#include <gtest/gtest.h>

#include "support/NameRules.h"

namespace qutav::test {
namespace {

TEST(NameRulesTest, AnApplicationIdHasLettersDigitsAndDots) {
  EXPECT_TRUE(IsValidApplicationId(u"com.example.Game2"));
  EXPECT_TRUE(IsValidApplicationId(u"azAZ09."));
  EXPECT_TRUE(IsValidApplicationId(u"."));
}

TEST(NameRulesTest, AnEmptyApplicationIdIsRefused) { EXPECT_FALSE(IsValidApplicationId(u"")); }

TEST(NameRulesTest, AnApplicationIdOf212UnitsIsAcceptedAndOneOf213Refused) {
  EXPECT_TRUE(IsValidApplicationId(std::u16string(212, u'a')));
  EXPECT_FALSE(IsValidApplicationId(std::u16string(213, u'a')));
}

TEST(NameRulesTest, AnApplicationIdWithAHyphenIsRefused) {
  EXPECT_FALSE(IsValidApplicationId(u"com.my-game"));
}

TEST(NameRulesTest, AnApplicationIdWithAnyOtherSignIsRefused) {
  for (const char16_t* sign : {u"_", u" ", u"/", u":", u"@", u"[", u"`", u"{", u"\u00E4", u"\n"}) {
    EXPECT_FALSE(IsValidApplicationId(std::u16string(u"a") + sign));
  }
}

TEST(NameRulesTest, AFileExtensionHasUpTo38LettersAndDigits) {
  EXPECT_TRUE(IsValidFileExtension(u"mp4"));
  EXPECT_TRUE(IsValidFileExtension(u"4azAZ09"));
  EXPECT_TRUE(IsValidFileExtension(std::u16string(38, u'x')));
  EXPECT_FALSE(IsValidFileExtension(std::u16string(39, u'x')));
  EXPECT_FALSE(IsValidFileExtension(u""));
}

TEST(NameRulesTest, AFileExtensionWithADotIsRefused) {
  EXPECT_FALSE(IsValidFileExtension(u"tar.gz"));
  EXPECT_FALSE(IsValidFileExtension(u".gz"));
  EXPECT_FALSE(IsValidFileExtension(u"g z"));
  EXPECT_FALSE(IsValidFileExtension(u"\u00E4"));
}

TEST(NameRulesTest, AFileTypeNameMayHoldDotsAndDigitsBehindItsBeginning) {
  EXPECT_TRUE(IsValidFileTypeName(u"a.b"));
  EXPECT_TRUE(IsValidFileTypeName(u"Movie2."));
  EXPECT_TRUE(IsValidFileTypeName(std::u16string(38, u'x')));
  EXPECT_FALSE(IsValidFileTypeName(std::u16string(39, u'x')));
}

TEST(NameRulesTest, AFileTypeNameThatBeginsWithADigitOrADotIsRefused) {
  EXPECT_FALSE(IsValidFileTypeName(u"1ab"));
  EXPECT_FALSE(IsValidFileTypeName(u".ab"));
}

TEST(NameRulesTest, AFileTypeNameWithAnyOtherSignIsRefused) {
  EXPECT_FALSE(IsValidFileTypeName(u""));
  EXPECT_FALSE(IsValidFileTypeName(u"a b"));
  EXPECT_FALSE(IsValidFileTypeName(u"a-b"));
  EXPECT_FALSE(IsValidFileTypeName(u"a_b"));
  EXPECT_FALSE(IsValidFileTypeName(u"\u00E4"));
}

}  // namespace
}  // namespace qutav::test
