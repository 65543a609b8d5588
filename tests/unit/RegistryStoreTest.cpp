#include "ServicesTest.h"
#include "support/RegistryStore.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

using Paths = std::vector<std::u16string>;

constexpr char16_t kKey[] = u"Software\\Zenvoka\\Quorl ";
constexpr char16_t kList[] = u"CertPath Android";
constexpr char16_t kListKey[] = u"Software\\Zenvoka\\Quorl \\CertPath Android";
constexpr unsigned kLimit = 10;

class RegistryStoreTest : public ServicesTest {
 protected:
  MemoryRegistry::Values& Stored() { return registry.keys[kListKey]; }

  // Puts "file1" to "file<count>" there, with the values "old1" and so on.
  void PutOld(int count) {
    for (int i = 1; i <= count; ++i) {
      const std::string number = std::to_string(i);
      const std::u16string wide(number.begin(), number.end());
      Stored().emplace_back(u"file" + wide, u"old" + wide);
    }
  }

  std::u16string ValueOf(const std::u16string& name) {
    for (const auto& [key, value] : Stored()) {
      if (key == name) return value;
    }
    return u"(none)";
  }

  static Paths ReadList() {
    Paths list;
    GetRegistryFileList(kList, list);
    return list;
  }
};

TEST_F(RegistryStoreTest, TheKeysNameEndsInABlank) {
  EXPECT_EQ(RegistrySettingsKeyPath(), u"Software\\Zenvoka\\Quorl ");
}

TEST_F(RegistryStoreTest, AValueIsWrittenUnderTheKeyAndReadBack) {
  std::u16string value;

  SetRegistryString(u"usbPort", u"7936");
  SetRegistryString(u"DigitalSign", u"");
  GetRegistryString(u"usbPort", value);

  EXPECT_EQ(value, u"7936");
  EXPECT_THAT(registry.keys[kKey],
              ElementsAre(Pair(u"usbPort", u"7936"), Pair(u"DigitalSign", u"")));
}

TEST_F(RegistryStoreTest, AMissingValueLeavesTheTextAndMakesTheKey) {
  std::u16string value = u"old";

  GetRegistryString(u"usbPort", value);

  EXPECT_EQ(value, u"old");
  EXPECT_TRUE(registry.keys.contains(kKey));
}

TEST_F(RegistryStoreTest, AnEmptyValueEmptiesTheText) {
  std::u16string value = u"old";
  SetRegistryString(u"usbPort", u"");

  GetRegistryString(u"usbPort", value);

  EXPECT_EQ(value, u"");
}

TEST_F(RegistryStoreTest, AValueOf511UnitsIsReadAndALongerOneIsNot) {
  std::u16string value = u"old";
  SetRegistryString(u"Last IPA Cert", std::u16string(512, u'c'));
  GetRegistryString(u"Last IPA Cert", value);
  EXPECT_EQ(value, u"old");

  SetRegistryString(u"Last IPA Cert", std::u16string(511, u'c'));
  GetRegistryString(u"Last IPA Cert", value);
  EXPECT_EQ(value, std::u16string(511, u'c'));
}

TEST_F(RegistryStoreTest, ReadingAListThatDoesNotExistCreatesItsKeyAndReturnsNothing) {
  EXPECT_THAT(ReadList(), IsEmpty());

  EXPECT_TRUE(registry.keys.contains(kListKey));
}

TEST_F(RegistryStoreTest, AListIsAppendedInTheOrderOfEnumeration) {
  Stored() = {{u"file2", u"b"}, {u"file1", u"a"}, {u"other", u"c"}};
  Paths list{u"before"};

  GetRegistryFileList(kList, list);

  EXPECT_THAT(list, ElementsAre(u"before", u"b", u"a", u"c"));
}

TEST_F(RegistryStoreTest, APathOf129UnitsIsReadAndOneOf130EndsTheReading) {
  const std::u16string longest(129, u'p');
  Stored() = {{u"file1", longest}, {u"file2", std::u16string(130, u'p')}, {u"file3", u"c"}};

  EXPECT_THAT(ReadList(), ElementsAre(longest));
}

TEST_F(RegistryStoreTest, TenNewPathsGoFromFile1ToFile10) {
  SaveRegistryFileList(kList, kLimit, {u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"h", u"i", u"j"});

  EXPECT_THAT(Stored(),
              ElementsAre(Pair(u"file1", u"a"), Pair(u"file2", u"b"), Pair(u"file3", u"c"),
                          Pair(u"file4", u"d"), Pair(u"file5", u"e"), Pair(u"file6", u"f"),
                          Pair(u"file7", u"g"), Pair(u"file8", u"h"), Pair(u"file9", u"i"),
                          Pair(u"file10", u"j")));
}

TEST_F(RegistryStoreTest, WithEightStoredThreeNewPathsBecomeNineTenAndThree) {
  PutOld(8);

  SaveRegistryFileList(kList, kLimit, {u"a", u"b", u"c"});

  EXPECT_EQ(ValueOf(u"file9"), u"a");
  EXPECT_EQ(ValueOf(u"file10"), u"b");
  EXPECT_EQ(ValueOf(u"file3"), u"c");
  EXPECT_EQ(ValueOf(u"file1"), u"old1");
  EXPECT_EQ(Stored().size(), 10u);
}

TEST_F(RegistryStoreTest, WithTenStoredANewPathOverwritesTheFirst) {
  PutOld(10);

  SaveRegistryFileList(kList, kLimit, {u"a"});

  EXPECT_EQ(ValueOf(u"file1"), u"a");
  EXPECT_EQ(ValueOf(u"file2"), u"old2");
  EXPECT_EQ(Stored().size(), 10u);
}

TEST_F(RegistryStoreTest, WithMoreStoredThanTheLimitNewPathsOverwriteFromTheFirst) {
  PutOld(12);

  SaveRegistryFileList(kList, kLimit, {u"a", u"b"});

  EXPECT_EQ(ValueOf(u"file1"), u"a");
  EXPECT_EQ(ValueOf(u"file2"), u"b");
  EXPECT_EQ(ValueOf(u"file3"), u"old3");
  EXPECT_EQ(ValueOf(u"file12"), u"old12");
  EXPECT_EQ(Stored().size(), 12u);
}

TEST_F(RegistryStoreTest, OneMoreThanTheLimitIsWrittenAndNoMore) {
  Paths list;
  for (char16_t c = u'a'; c <= u'm'; ++c) list.emplace_back(1, c);

  SaveRegistryFileList(kList, kLimit, list);

  EXPECT_EQ(ValueOf(u"file10"), u"j");
  EXPECT_EQ(ValueOf(u"file11"), u"k");
  EXPECT_EQ(Stored().size(), 11u);
}

TEST_F(RegistryStoreTest, KnownPathsAreSkippedExactlyAndNeitherMovedNorCounted) {
  PutOld(2);

  SaveRegistryFileList(kList, kLimit, {u"old2", u"OLD1", u"old1"});

  EXPECT_THAT(Stored(), ElementsAre(Pair(u"file1", u"old1"), Pair(u"file2", u"old2"),
                                    Pair(u"file3", u"OLD1")));
}

TEST_F(RegistryStoreTest, ANewPathThatStandsTwiceIsWrittenTwice) {
  SaveRegistryFileList(kList, kLimit, {u"a", u"a"});

  EXPECT_THAT(Stored(), ElementsAre(Pair(u"file1", u"a"), Pair(u"file2", u"a")));
}

TEST_F(RegistryStoreTest, WhatStandsBehindALongPathIsNotKnownAndNotCounted) {
  Stored() = {{u"file1", u"a"}, {u"file2", std::u16string(130, u'p')}, {u"file3", u"c"}};

  SaveRegistryFileList(kList, kLimit, {u"c"});

  EXPECT_THAT(Stored(),
              ElementsAre(Pair(u"file1", u"a"), Pair(u"file2", u"c"), Pair(u"file3", u"c")));
}

TEST_F(RegistryStoreTest, AnEmptyListOpensAndClosesTheKeyAndChangesNothing) {
  PutOld(1);

  SaveRegistryFileList(kList, kLimit, {});

  EXPECT_THAT(Stored(), ElementsAre(Pair(u"file1", u"old1")));
  EXPECT_EQ(registry.opened, 1);
  EXPECT_EQ(registry.closed, 1);
}

TEST_F(RegistryStoreTest, EveryOperationClosesTheKeyThatItOpened) {
  std::u16string value;
  SetRegistryString(u"usbPort", u"7936");
  GetRegistryString(u"usbPort", value);
  GetRegistryString(u"missing", value);
  ReadList();
  SaveRegistryFileList(kList, kLimit, {u"a"});

  EXPECT_EQ(registry.opened, 5);
  EXPECT_EQ(registry.closed, 5);
}

TEST_F(RegistryStoreTest, AKeyThatCannotBeOpenedMakesEveryOperationDoNothing) {
  registry.refuses = true;
  std::u16string value = u"old";

  SetRegistryString(u"usbPort", u"7936");
  GetRegistryString(u"usbPort", value);
  SaveRegistryFileList(kList, kLimit, {u"a"});

  EXPECT_EQ(value, u"old");
  EXPECT_THAT(ReadList(), IsEmpty());
  EXPECT_TRUE(registry.keys.empty());
}

}  // namespace
}  // namespace qutav::test
