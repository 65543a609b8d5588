#include <thread>

#include "ServicesTest.h"
#include "platform/Text.h"
#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/Wide.h"
#include "support/RegistryStore.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;

constexpr char16_t kKey[] = u"Software\\Zenvoka\\Quorl ";
constexpr std::size_t kCapacity = 1024;
constexpr wchar_t kOwnHive[] = L"Software\\QutavTestHive";

// The user's hive is another key while a test runs, so that none touches real settings.
class WindowsRegistryTest : public ServicesTest {
 protected:
  WindowsRegistryTest() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kOwnHive);
    RegCreateKeyExW(HKEY_CURRENT_USER, kOwnHive, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &hive_,
                    nullptr);
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, hive_), ERROR_SUCCESS);
    TheServices().registry = &SystemRegistry();
  }
  ~WindowsRegistryTest() override {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(hive_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kOwnHive);
  }

  static std::unique_ptr<RegistryKey> Open(const std::u16string& path = kKey) {
    return SystemRegistry().OpenOrCreate(path);
  }

  static std::vector<std::u16string> AllValues() {
    std::vector<std::u16string> values;
    const auto key = Open();
    for (std::size_t i = 0; auto value = key->Enumerate(i, kCapacity); ++i) {
      values.push_back(*value);
    }
    return values;
  }

  bool KeyExists(const wchar_t* path) const {
    HKEY key = nullptr;
    const bool there = RegOpenKeyExW(hive_, path, 0, KEY_READ, &key) == ERROR_SUCCESS;
    RegCloseKey(key);
    return there;
  }

  void StoreRaw(const wchar_t* name, DWORD type, const void* bytes, DWORD size) const {
    RegSetKeyValueW(hive_, Wide(kKey), name, type, bytes, size);
  }

 private:
  HKEY hive_ = nullptr;
};

TEST_F(WindowsRegistryTest, AValueSurvivesTheKey) {
  Open()->Set(u"usbPort", u"7936");

  EXPECT_THAT(Open()->Query(u"usbPort", kCapacity), Optional(std::u16string(u"7936")));
  EXPECT_EQ(Open()->Query(u"missing", kCapacity), std::nullopt);
}

TEST_F(WindowsRegistryTest, OpeningCreatesTheKey) {
  EXPECT_FALSE(KeyExists(L"Software\\Zenvoka\\Quorl \\IpaCertPath"));

  Open(u"Software\\Zenvoka\\Quorl \\IpaCertPath");

  EXPECT_TRUE(KeyExists(L"Software\\Zenvoka\\Quorl \\IpaCertPath"));
}

TEST_F(WindowsRegistryTest, KeysThatDifferInABlankAreDifferent) {
  Open()->Set(u"a", u"with");
  Open(u"Software\\Zenvoka\\Quorl")->Set(u"a", u"without");

  EXPECT_THAT(Open()->Query(u"a", kCapacity), Optional(std::u16string(u"with")));
}

TEST_F(WindowsRegistryTest, AnyTextSurvives) {
  const std::u16string text = u"C:\\a\\\"b\" \u00E4\u3042\U0001F600\n\t\u0001";

  Open()->Set(u"n\u00E4me \"x\"", text);

  EXPECT_THAT(Open()->Query(u"n\u00E4me \"x\"", kCapacity), Optional(text));
}

TEST_F(WindowsRegistryTest, AValueNeedsRoomForItsTerminator) {
  const auto key = Open();
  key->Set(u"a", std::u16string(511, u'x'));

  EXPECT_TRUE(key->Query(u"a", 1024));
  EXPECT_FALSE(key->Query(u"a", 1023));
  EXPECT_TRUE(key->Enumerate(0, 1024));
  EXPECT_FALSE(key->Enumerate(0, 1023));
}

TEST_F(WindowsRegistryTest, EveryValueIsEnumerated) {
  const auto key = Open();
  key->Set(u"file1", u"1");
  key->Set(u"file2", u"2");
  key->Set(u"file3", u"3");
  key->Set(u"file1", u"4");

  EXPECT_THAT(AllValues(), ElementsAre(u"4", u"2", u"3"));
}

TEST_F(WindowsRegistryTest, AValueThatIsNoTextDoesNotHideThoseBehindIt) {
  const DWORD number = 0x41;
  StoreRaw(L"a", REG_DWORD, &number, sizeof number);
  Open()->Set(u"b", u"text");

  EXPECT_THAT(Open()->Query(u"a", kCapacity), Optional(std::u16string(u"A")));
  EXPECT_THAT(Open()->Enumerate(1, kCapacity), Optional(std::u16string(u"text")));
}

TEST_F(WindowsRegistryTest, ATextThatWasStoredWithoutATerminatorIsRead) {
  StoreRaw(L"a", REG_SZ, L"four", 4 * sizeof(wchar_t));

  EXPECT_THAT(Open()->Query(u"a", kCapacity), Optional(std::u16string(u"four")));
}

TEST_F(WindowsRegistryTest, AKeyThatCannotBeOpenedIsNone) {
  EXPECT_EQ(Open(u"Software\\" + std::u16string(300, u'k')), nullptr);
}

TEST_F(WindowsRegistryTest, ThreadsThatWriteAtOnceLoseNothing) {
  std::vector<std::thread> runners;
  for (int writer = 0; writer < 4; ++writer) {
    runners.emplace_back([writer] {
      const auto key = Open();
      for (int i = 0; i < 10; ++i) key->Set(ToDecimal(writer) + u"-" + ToDecimal(i), u"value");
    });
  }
  for (std::thread& thread : runners) thread.join();

  EXPECT_EQ(AllValues().size(), 40u);
}

TEST_F(WindowsRegistryTest, TheStoreKeepsItsValuesAndListsThere) {
  SetRegistryString(u"Last Selected Cert Android", u"C:\\a b\\\u00E4.p12");
  SaveRegistryFileList(u"CertPath Android", 10, {u"C:\\a b\\\u00E4.p12", u"C:\\c.p12"});
  std::u16string value;
  std::vector<std::u16string> list;

  GetRegistryString(u"Last Selected Cert Android", value);
  GetRegistryFileList(u"CertPath Android", list);

  EXPECT_EQ(value, u"C:\\a b\\\u00E4.p12");
  EXPECT_THAT(list, ElementsAre(u"C:\\a b\\\u00E4.p12", u"C:\\c.p12"));
}

}  // namespace
}  // namespace qutav::test
