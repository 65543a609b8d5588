#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <thread>

#include "EnvironmentVariable.h"
#include "ServicesTest.h"
#include "TemporaryFolder.h"
#include "platform/Text.h"
#include "platform/posix/SystemServices.h"
#include "support/RegistryStore.h"

namespace qutav::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Optional;

constexpr char16_t kKey[] = u"Software\\Zenvoka\\Quorl ";
constexpr std::size_t kCapacity = 1024;
constexpr char kFile[] = "qutav/registry.json";

class PosixRegistryTest : public ServicesTest {
 protected:
  PosixRegistryTest() { TheServices().registry = &SystemRegistry(); }

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

  // Writes so many values with names of its own.
  static void WriteMany(int writer, int count) {
    const auto key = Open();
    for (int i = 0; i < count; ++i) {
      key->Set(ToDecimal(writer) + u"-" + ToDecimal(i), u"value");
    }
  }

  TemporaryFolder folder;
  EnvironmentVariable config{"XDG_CONFIG_HOME", folder.Native().string()};
};

TEST_F(PosixRegistryTest, AValueSurvivesTheKey) {
  Open()->Set(u"usbPort", u"7936");

  EXPECT_THAT(Open()->Query(u"usbPort", kCapacity), Optional(std::u16string(u"7936")));
  EXPECT_EQ(Open()->Query(u"missing", kCapacity), std::nullopt);
}

TEST_F(PosixRegistryTest, TheFileIsItsOwnersOnly) {
  const mode_t mask = umask(0);

  Open()->Set(u"usbPort", u"7936");

  umask(mask);
  struct stat status {};
  ASSERT_EQ(stat(folder.Native(kFile).c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0600u);
}

TEST_F(PosixRegistryTest, OpeningCreatesTheKey) {
  Open(u"Software\\Zenvoka\\Quorl \\IpaCertPath");

  EXPECT_THAT(folder.BytesOf(kFile), HasSubstr("\"Software\\\\Zenvoka\\\\Quorl \\\\IpaCertPath\""));
}

TEST_F(PosixRegistryTest, ValuesKeepTheOrderOfTheirFirstWriting) {
  const auto key = Open();
  key->Set(u"z", u"1");
  key->Set(u"a", u"2");
  key->Set(u"m", u"3");
  key->Set(u"z", u"4");

  EXPECT_THAT(AllValues(), ElementsAre(u"4", u"2", u"3"));
}

TEST_F(PosixRegistryTest, KeysThatDifferInABlankAreDifferent) {
  Open()->Set(u"a", u"with");
  Open(u"Software\\Zenvoka\\Quorl")->Set(u"a", u"without");

  EXPECT_THAT(Open()->Query(u"a", kCapacity), Optional(std::u16string(u"with")));
}

TEST_F(PosixRegistryTest, AnyTextSurvives) {
  const std::u16string text = u"C:\\a\\\"b\" \u00E4\u3042\U0001F600\n\t\u0001";

  Open()->Set(u"n\u00E4me \"x\"", text);

  EXPECT_THAT(Open()->Query(u"n\u00E4me \"x\"", kCapacity), Optional(text));
}

TEST_F(PosixRegistryTest, AValueNeedsRoomForItsTerminator) {
  const auto key = Open();
  key->Set(u"a", std::u16string(511, u'x'));

  EXPECT_TRUE(key->Query(u"a", 1024));
  EXPECT_FALSE(key->Query(u"a", 1023));
  EXPECT_TRUE(key->Enumerate(0, 1024));
  EXPECT_FALSE(key->Enumerate(0, 1023));
}

TEST_F(PosixRegistryTest, ADamagedFileIsSetAside) {
  fs::create_directory(folder.Native("qutav"));
  folder.Put(kFile, "{\"Software\": {\"usb");

  Open()->Set(u"usbPort", u"7936");

  EXPECT_EQ(folder.BytesOf("qutav/registry.json.damaged"), "{\"Software\": {\"usb");
  EXPECT_THAT(AllValues(), ElementsAre(u"7936"));
}

TEST_F(PosixRegistryTest, EachDamagedFileIsKeptUnderANameOfItsOwn) {
  fs::create_directory(folder.Native("qutav"));
  for (const char* damaged : {"first", "second", "third"}) {
    folder.Put(kFile, damaged);
    Open()->Set(u"usbPort", u"7936");
  }

  EXPECT_EQ(folder.BytesOf("qutav/registry.json.damaged"), "first");
  EXPECT_EQ(folder.BytesOf("qutav/registry.json.damaged2"), "second");
  EXPECT_EQ(folder.BytesOf("qutav/registry.json.damaged3"), "third");
  EXPECT_THAT(AllValues(), ElementsAre(u"7936"));
}

TEST_F(PosixRegistryTest, AFileOfAnotherKindIsSetAside) {
  fs::create_directory(folder.Native("qutav"));
  folder.Put(kFile, "[1, 2]");

  EXPECT_NE(Open(), nullptr);

  EXPECT_EQ(folder.BytesOf("qutav/registry.json.damaged"), "[1, 2]");
}

TEST_F(PosixRegistryTest, AnEmptyFileIsSetAside) {
  fs::create_directory(folder.Native("qutav"));
  folder.Put(kFile, "");

  Open()->Set(u"usbPort", u"7936");

  EXPECT_THAT(AllValues(), ElementsAre(u"7936"));
}

TEST_F(PosixRegistryTest, WhatIsNoTextIsNoValue) {
  fs::create_directory(folder.Native("qutav"));
  folder.Put(kFile, R"({"Software\\Zenvoka\\Quorl ": {"a": "1", "b": 2, "c": "3"}, "Other": 4})");

  EXPECT_EQ(Open()->Query(u"b", kCapacity), std::nullopt);
  EXPECT_THAT(AllValues(), ElementsAre(u"1")) << "enumeration ends at the first failure";
  EXPECT_NE(Open(u"Other"), nullptr) << "a key that is no object becomes one";
  EXPECT_THAT(Open()->Query(u"c", kCapacity), Optional(std::u16string(u"3")));
}

TEST_F(PosixRegistryTest, WithoutAnXdgFolderTheFileLiesBelowHome) {
  const EnvironmentVariable home("HOME", folder.Native().string());
  const EnvironmentVariable relative("XDG_CONFIG_HOME", "relative");
  Open()->Set(u"a", u"1");
  EXPECT_NE(folder.BytesOf(".config/qutav/registry.json"), "(none)");

  const EnvironmentVariable unset("XDG_CONFIG_HOME", std::nullopt);
  EXPECT_THAT(AllValues(), ElementsAre(u"1"));
}

TEST_F(PosixRegistryTest, WithoutAnyFolderNoKeyOpensAndTheStoreDoesNothing) {
  folder.Put("file", "");
  const EnvironmentVariable blocked("XDG_CONFIG_HOME", folder.Native("file").string());
  std::u16string value = u"old";
  EXPECT_EQ(Open(), nullptr);

  SetRegistryString(u"usbPort", u"7936");
  GetRegistryString(u"usbPort", value);
  EXPECT_EQ(value, u"old");

  const EnvironmentVariable noConfig("XDG_CONFIG_HOME", std::nullopt);
  const EnvironmentVariable noHome("HOME", std::nullopt);
  EXPECT_EQ(Open(), nullptr);
}

TEST_F(PosixRegistryTest, ThreadsThatWriteAtOnceLoseNothing) {
  std::vector<std::thread> runners;
  for (int writer = 0; writer < 4; ++writer) {
    runners.emplace_back([writer] { WriteMany(writer, 10); });
  }
  for (std::thread& thread : runners) thread.join();

  EXPECT_EQ(AllValues().size(), 40u);
}

TEST_F(PosixRegistryTest, ProcessesThatWriteAtOnceLoseNothing) {
  std::vector<pid_t> children;
  for (int writer = 0; writer < 4; ++writer) {
    const pid_t child = fork();
    if (child == 0) {
      WriteMany(writer, 10);
      _exit(0);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) waitpid(child, nullptr, 0);

  EXPECT_EQ(AllValues().size(), 40u);
}

TEST_F(PosixRegistryTest, TheStoreKeepsItsListsInTheFile) {
  SaveRegistryFileList(u"CertPath Android", 10, {u"/a b/\u00E4.p12", u"/c.p12"});
  std::vector<std::u16string> list;

  GetRegistryFileList(u"CertPath Android", list);

  EXPECT_THAT(list, ElementsAre(u"/a b/\u00E4.p12", u"/c.p12"));
}

}  // namespace
}  // namespace qutav::test
