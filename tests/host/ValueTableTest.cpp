#include <gtest/gtest.h>

#include <vector>

#include "host/ValueTable.h"

namespace qutav::host {
namespace {

TEST(ValueTableTest, TheNumberZeroIsTheWordOne) {
  ValueTable table;
  EXPECT_EQ(table.WordFor(0.0), 1U);
  EXPECT_EQ(table.WordFor(-0.0), 1U);
}

TEST(ValueTableTest, WholeNumbersCarryThemselves) {
  ValueTable table;
  EXPECT_EQ(table.WordFor(800.0), 1601U);
  EXPECT_EQ(std::get<double>(*table.ValueOf(1601)), 800.0);
  EXPECT_EQ(std::get<double>(*table.ValueOf(table.WordFor(-7.0))), -7.0);
}

TEST(ValueTableTest, OtherValuesAreEvenHandles) {
  ValueTable table;
  const std::uint64_t text = table.WordFor(std::u16string(u"0"));
  EXPECT_EQ(text % 2, 0U);
  EXPECT_NE(text, 0U);
  EXPECT_EQ(std::get<std::u16string>(*table.ValueOf(text)), u"0");
  EXPECT_EQ(std::get<double>(*table.ValueOf(table.WordFor(0.5))), 0.5);
}

TEST(ValueTableTest, HandleEndsWithItsScopeAndIsNotGivenOutAgain) {
  ValueTable table;
  std::uint64_t first = 0;
  {
    const ValueTable::Scope scope(table);
    first = table.WordFor(std::u16string(u"first"));
  }
  const ValueTable::Scope scope(table);
  const std::uint64_t second = table.WordFor(std::u16string(u"second"));
  EXPECT_FALSE(table.ValueOf(first).has_value());
  EXPECT_NE(first, second);
}

TEST(ValueTableTest, InnerScopeLeavesTheOuterValuesAlone) {
  ValueTable table;
  const ValueTable::Scope outer(table);
  const std::uint64_t word = table.WordFor(true);
  const char16_t* text = table.Keep(u"kept");
  {
    const ValueTable::Scope inner(table);
    table.WordFor(false);
    table.Keep(u"short-lived");
  }
  EXPECT_TRUE(table.ValueOf(word).has_value());
  EXPECT_EQ(std::u16string(text), u"kept");
}

TEST(ValueTableTest, KeptTextStaysWhereItIsWhileOthersCome) {
  ValueTable table;
  const char16_t* text = table.Keep(u"short");
  for (int i = 0; i < 5000; ++i) table.Keep(u"another");
  EXPECT_EQ(std::u16string(text), u"short");
}

TEST(ValueTableTest, UnknownWordNamesNothing) {
  const ValueTable table;
  EXPECT_FALSE(table.ValueOf(0).has_value());
  EXPECT_FALSE(table.ValueOf(123456).has_value());
}

}  // namespace
}  // namespace qutav::host
