#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>

#include "host/HostTable.h"

namespace qutav::host {
namespace {

// A host whose every operation throws.
class ThrowingHost : public TableHost {
  void DefineFunction(const char16_t*, ScriptFunction, std::uint32_t) override { Throw(); }
  void ValueToInteger(std::uint64_t, std::int32_t&) override { Throw(); }
  void ValueToBoolean(std::uint64_t, std::int32_t&) override { Throw(); }
  const char16_t* ValueToString(std::uint64_t, std::uint32_t&) override { Throw(); }
  const char16_t* UriToPath(const char16_t*) override { Throw(); }
  bool EvaluateScript(const char16_t*, std::uint32_t, const char*, std::uint32_t,
                      std::uint64_t&) override {
    Throw();
  }
  [[noreturn]] static void Throw() { throw std::runtime_error("from the host"); }
};

std::int32_t Nothing(void*, void*, std::uint32_t, std::uint64_t*, std::uint64_t*) { return 1; }

template <typename Function>
Function EntryOf(const HostTable& table, std::size_t index) {
  return reinterpret_cast<Function>(table[index]);
}

using DefineEntry = std::int32_t (*)(void*, const char16_t*, ScriptFunction, std::uint32_t);
using NumberEntry = std::int32_t (*)(void*, std::uint64_t, std::int32_t*);
using TextEntry = const char16_t* (*)(void*, std::uint64_t, std::uint32_t*);
using PathEntry = const char16_t* (*)(void*, const char16_t*);
using EvaluateEntry = std::int32_t (*)(void*, void*, const char16_t*, std::uint32_t, const char*,
                                       std::uint32_t, std::uint64_t*);

TEST(HostTableTest, TableHas448Bytes) { EXPECT_EQ(sizeof(HostTable), 448U); }

TEST(HostTableTest, OnlyTheSevenUsedWordsAreFilled) {
  ThrowingHost host;
  const HostTable table = MakeHostTable(host);
  const std::set<std::size_t> used = {0, 1, 4, 6, 19, 50, 55};
  for (std::size_t i = 0; i < table.size(); ++i) {
    EXPECT_EQ(table[i] != 0, used.contains(i)) << "word " << i;
  }
}

TEST(HostTableTest, ExceptionsDoNotCrossTheTable) {
  ThrowingHost host;
  const HostTable table = MakeHostTable(host);
  void* context = reinterpret_cast<void*>(table[0]);
  std::int32_t number = 5;
  std::uint32_t length = 5;
  std::uint64_t result = 5;
  EXPECT_EQ(EntryOf<DefineEntry>(table, 1)(context, u"f", Nothing, 0), 0);
  EXPECT_EQ(EntryOf<NumberEntry>(table, 4)(context, 1, &number), 0);
  EXPECT_EQ(EntryOf<NumberEntry>(table, 6)(context, 1, &number), 0);
  EXPECT_EQ(EntryOf<TextEntry>(table, 19)(context, 1, &length), nullptr);
  EXPECT_EQ(EntryOf<PathEntry>(table, 50)(context, u"file:///x"), nullptr);
  EXPECT_EQ(EntryOf<EvaluateEntry>(table, 55)(context, context, u"1", 1, "n", 1, &result), 0);
  EXPECT_EQ(number, 5);
  EXPECT_EQ(result, 5U);
}

TEST(HostTableTest, NullContextAndNullTextsAreRefused) {
  ThrowingHost host;
  const HostTable table = MakeHostTable(host);
  void* context = reinterpret_cast<void*>(table[0]);
  std::uint64_t result = 5;
  EXPECT_EQ(EntryOf<PathEntry>(table, 50)(nullptr, u"file:///x"), nullptr);
  EXPECT_EQ(EntryOf<PathEntry>(table, 50)(context, nullptr), nullptr);
  EXPECT_EQ(EntryOf<DefineEntry>(table, 1)(context, nullptr, Nothing, 0), 0);
  EXPECT_EQ(EntryOf<NumberEntry>(table, 4)(context, 1, nullptr), 0);
  EXPECT_EQ(EntryOf<EvaluateEntry>(table, 55)(context, context, nullptr, 0, "n", 1, &result), 0);
}

}  // namespace
}  // namespace qutav::host
