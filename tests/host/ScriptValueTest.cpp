#include <gtest/gtest.h>

#include <cmath>

#include "host/ScriptValue.h"

namespace qutav::host {
namespace {

TEST(ScriptValueTest, UndefinedHasNoText) { EXPECT_EQ(TextOf(ScriptValue()), std::nullopt); }

TEST(ScriptValueTest, NumbersAreWrittenAsShortAsTheyCan) {
  EXPECT_EQ(TextOf(800.0), u"800");
  EXPECT_EQ(TextOf(-0.0), u"0");
  EXPECT_EQ(TextOf(0.25), u"0.25");
  EXPECT_EQ(TextOf(NAN), u"NaN");
}

TEST(ScriptValueTest, IntegerCutsFractionsAndWraps) {
  EXPECT_EQ(IntegerOf(-3.9), -3);
  EXPECT_EQ(IntegerOf(4294967296.0 + 5), 5);
  EXPECT_EQ(IntegerOf(2147483648.0), -2147483647 - 1);
  EXPECT_EQ(IntegerOf(INFINITY), 0);
}

TEST(ScriptValueTest, TextIsAnIntegerOnlyWhenAllOfItIsOne) {
  EXPECT_EQ(IntegerOf(std::u16string(u"42")), 42);
  EXPECT_EQ(IntegerOf(std::u16string(u"42px")), 0);
}

TEST(ScriptValueTest, TruthFollowsTheScriptLanguage) {
  EXPECT_TRUE(BooleanOf(std::u16string(u"false")));
  EXPECT_FALSE(BooleanOf(std::u16string()));
  EXPECT_FALSE(BooleanOf(0.0));
  EXPECT_FALSE(BooleanOf(NAN));
  EXPECT_TRUE(BooleanOf(ObjectId{3}));
  EXPECT_FALSE(BooleanOf(ScriptValue()));
}

}  // namespace
}  // namespace qutav::host
