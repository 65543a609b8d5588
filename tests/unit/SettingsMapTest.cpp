#include "ServicesTest.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

class SettingsMapTest : public ServicesTest {
 protected:
  static bool Holds(const std::u16string& key) { return SettingsMap.contains(key); }
};

TEST_F(SettingsMapTest, GettingAMissingKeyCreatesItEmpty) {
  EXPECT_EQ(SettingsGet(u"new.key"), u"");

  EXPECT_EQ(SettingsMap, (SettingsTexts{{u"new.key", u""}}));
}

TEST_F(SettingsMapTest, KeysAreCaseSensitive) {
  SettingsSet(u"com.tav.moresh.url", u"lower");
  SettingsSet(u"com.tav.moresh.URL", u"upper");

  EXPECT_EQ(SettingsGet(u"com.tav.moresh.url"), u"lower");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.URL"), u"upper");
}

TEST_F(SettingsMapTest, KeysAreOrderedByUnit) {
  for (const char16_t* key : {u"b", u"a", u"Z", u"\u00e4"}) SettingsSet(key, u"");

  std::vector<std::u16string> order;
  for (const auto& [key, value] : SettingsMap) order.push_back(key);

  EXPECT_EQ(order, (std::vector<std::u16string>{u"Z", u"a", u"b", u"\u00e4"}));
}

TEST_F(SettingsMapTest, GettingTextCopiesAValueThatHasText) {
  std::u16string buffer = u"a longer old content";
  SettingsSet(keys::kUrl, u"new");

  EXPECT_TRUE(SettingsGetText(keys::kUrl, buffer));

  EXPECT_EQ(buffer, u"new");
}

TEST_F(SettingsMapTest, GettingTextOfAnEmptyValueLeavesTheBufferAlone) {
  std::u16string buffer = u"old";
  SettingsSet(keys::kUrl, u"");

  EXPECT_FALSE(SettingsGetText(keys::kUrl, buffer));

  EXPECT_EQ(buffer, u"old");
}

TEST_F(SettingsMapTest, GettingTextOfAMissingKeyCreatesIt) {
  std::u16string buffer;

  EXPECT_FALSE(SettingsGetText(keys::kUrl, buffer));

  EXPECT_TRUE(Holds(keys::kUrl));
}

TEST_F(SettingsMapTest, GettingTextOfANullKeyGivesFalse) {
  std::u16string buffer = u"old";

  EXPECT_FALSE(SettingsGetText(nullptr, buffer));

  EXPECT_EQ(buffer, u"old");
  EXPECT_TRUE(SettingsMap.empty());
}

TEST_F(SettingsMapTest, SettingReplacesTheValue) {
  SettingsSet(u"key", u"first");

  EXPECT_TRUE(SettingsSet(u"key", u"second"));

  EXPECT_EQ(SettingsGet(u"key"), u"second");
}

TEST_F(SettingsMapTest, OnlyTwoNullsAreRefusedWhenSetting) {
  const char16_t* none = nullptr;

  EXPECT_FALSE(SettingsSet(none, none));
  EXPECT_TRUE(SettingsMap.empty());

  EXPECT_TRUE(SettingsSet(u"key", none));
  EXPECT_TRUE(SettingsSet(none, u"value"));
  EXPECT_EQ(SettingsMap, (SettingsTexts{{u"", u"value"}, {u"key", u""}}));
}

TEST_F(SettingsMapTest, RemovingErasesTheKey) {
  SettingsSet(u"key", u"value");

  EXPECT_TRUE(SettingsRemove(u"key"));

  EXPECT_FALSE(Holds(u"key"));
}

TEST_F(SettingsMapTest, RemovingAMissingKeySucceedsAndANullKeyDoesNot) {
  const char16_t* none = nullptr;

  EXPECT_TRUE(SettingsRemove(u"missing"));
  EXPECT_FALSE(SettingsRemove(none));
}

TEST_F(SettingsMapTest, EqualityIsExact) {
  SettingsSet(u"flag", u"true");

  EXPECT_TRUE(SettingsEquals(u"flag", u"true"));
  EXPECT_FALSE(SettingsEquals(u"flag", u"True"));
  EXPECT_FALSE(SettingsEquals(u"flag", u"true "));
}

TEST_F(SettingsMapTest, ResettingKeepsTheThirteenKeysThatAreAlwaysSticky) {
  const SettingsTexts sticky = {
      {u"com.tav.moresh.rempwd", u"1"},      {u"com.tav.moresh.certpath", u"2"},
      {u"com.tav.moresh.timestamp", u"3"},   {u"com.tav.moresh.url", u"4"},
      {u"com.tav.moresh.serverurl", u"5"},   {u"com.tav.moresh.iparempwd", u"6"},
      {u"com.tav.moresh.ipacertpath", u"7"}, {u"com.tav.moresh.ipaprovision", u"8"},
      {u"com.tav.pelund.adb.path", u"9"},    {u"com.tav.pelund.adbopt", u"10"},
      {u"ipa.install.devices", u"11"},       {u"android.device.serials", u"12"},
      {u"android.device.states", u"13"}};
  SettingsMap = sticky;

  ResetSettings();

  EXPECT_EQ(SettingsMap, sticky);
}

TEST_F(SettingsMapTest, ResettingDropsEverythingElse) {
  for (const char16_t* key :
       {keys::kPublishType, keys::kMovieFolder, keys::kExitOk, keys::kIncludedCount, keys::kSdkPath,
        keys::kExtensionFolder, keys::kForceExport, keys::kMarketUrl}) {
    SettingsSet(key, u"text");
  }

  ResetSettings();

  EXPECT_EQ(SettingsMap.size(), 13u);
  for (const auto& [key, value] : SettingsMap) EXPECT_EQ(value, u"");
}

TEST_F(SettingsMapTest, ResettingAFreshMapLeavesThirteenEmptyKeys) {
  ResetSettings();

  EXPECT_EQ(SettingsMap.size(), 13u);
  for (const auto& [key, value] : SettingsMap) EXPECT_EQ(value, u"") << "a sticky key has text";
}

TEST_F(SettingsMapTest, ResettingWithoutARememberMarkForgetsThePassword) {
  SettingsSet(keys::kCertificatePassword, u"secret");
  SettingsSet(keys::kRememberPassword, u"");

  ResetSettings();

  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"");
}

TEST_F(SettingsMapTest, ResettingKeepsAPasswordWhoseRememberMarkIsTrue) {
  SettingsSet(keys::kCertificatePassword, u"secret");
  SettingsSet(keys::kRememberPassword, u"true");

  ResetSettings();

  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"secret");
  EXPECT_EQ(SettingsMap.size(), 14u);
}

TEST_F(SettingsMapTest, EachPasswordFollowsItsOwnRememberMark) {
  SettingsSet(keys::kCertificatePassword, u"android");
  SettingsSet(keys::kIpaCertificatePassword, u"ios");
  SettingsSet(keys::kRememberPassword, u"false");
  SettingsSet(keys::kIpaRememberPassword, u"true");

  ResetSettings();

  EXPECT_FALSE(Holds(keys::kCertificatePassword));
  EXPECT_EQ(SettingsGet(keys::kIpaCertificatePassword), u"ios");
}

TEST_F(SettingsMapTest, ARememberMarkInAnotherCaseForgetsThePassword) {
  SettingsSet(keys::kIpaCertificatePassword, u"ios");
  SettingsSet(keys::kIpaRememberPassword, u"True");

  ResetSettings();

  EXPECT_FALSE(Holds(keys::kIpaCertificatePassword));
}

TEST_F(SettingsMapTest, ClearingIncludedItemsErasesThoseBelowTheCountAndKeepsTheCount) {
  SettingsSet(keys::kIncludedCount, u"2");
  for (const char16_t* index : {u"0", u"1", u"2"}) {
    SettingsSet(std::u16string(keys::kIncludedItem) + index, u"file");
  }

  ClearIncludedItems();

  EXPECT_EQ(SettingsMap, (SettingsTexts{{u"com.tav.moresh.included.count", u"2"},
                                        {u"com.tav.moresh.included.item2", u"file"}}));
}

TEST_F(SettingsMapTest, ClearingIncludedItemsWithoutACountErasesNothing) {
  for (const char16_t* count : {u"", u"0", u"many"}) {
    SettingsSet(keys::kIncludedCount, count);
    SettingsSet(u"com.tav.moresh.included.item0", u"file");

    ClearIncludedItems();

    EXPECT_TRUE(Holds(u"com.tav.moresh.included.item0"));
  }
}

TEST_F(SettingsMapTest, ACountOfIncludedItemsIsCappedAndOtherwiseKept) {
  EXPECT_EQ(IncludedItemCount(u"2147483647"), 65536);
  EXPECT_EQ(IncludedItemCount(u"65537"), 65536);
  EXPECT_EQ(IncludedItemCount(u"65536"), 65536);
  EXPECT_EQ(IncludedItemCount(u"65535"), 65535);
  EXPECT_EQ(IncludedItemCount(u"2"), 2);
  EXPECT_EQ(IncludedItemCount(u"0"), 0);
  EXPECT_EQ(IncludedItemCount(u"-1"), -1);
  EXPECT_EQ(IncludedItemCount(u"-2147483647"), -2147483647);
}

}  // namespace
}  // namespace qutav::test
