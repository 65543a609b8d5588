#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Eventually.h"
#include "framework/windows/NativeFrontEnd.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"

namespace qutav::test {
namespace {

namespace fs = std::filesystem;

std::string ContentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// Gives a protocol a program, until the test is over. Some systems do not look at the user's own
/// classes, so this is for all users.
class RegisteredProtocol {
 public:
  RegisteredProtocol(const std::u16string& name, const std::u16string& command) : key_(name) {
    SetText(key_, L"URL Protocol", u"");
    SetText(key_ + u"\\shell\\open\\command", nullptr, command);
  }
  ~RegisteredProtocol() { RegDeleteTreeW(HKEY_CLASSES_ROOT, Wide(key_)); }
  RegisteredProtocol(const RegisteredProtocol&) = delete;
  RegisteredProtocol& operator=(const RegisteredProtocol&) = delete;

 private:
  static void SetText(const std::u16string& key, const wchar_t* name, const std::u16string& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(char16_t));
    EXPECT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, Wide(key), name, REG_SZ, Wide(text), bytes),
              ERROR_SUCCESS);
  }

  std::u16string key_;
};

// The child's arguments are of the local code page, which may lack what a test's own folder is
// named.
TEST(NativeLinksTest, ALinkStartsTheProgramOfItsProtocolWithTheWholeAddress) {
  const fs::path file =
      fs::temp_directory_path() / ("qutav-address-" + std::to_string(GetCurrentProcessId()));
  const fs::path child = (fs::path(FAKE_CHILD_FOLDER) / "fake_child.exe").make_preferred();
  const RegisteredProtocol protocol(
      u"qutav-test", u"\"" + child.u16string() + u"\" keep \"" + file.u16string() + u"\" \"%1\"");

  NativeFrontEnd().OpenLink(u"qutav-test://host/a%20page?topic=icons&form=2#top");

  EXPECT_TRUE(Eventually([&] {
    return ContentOf(file) == "qutav-test://host/a%20page?topic=icons&form=2#top";
  })) << ContentOf(file);
  fs::remove(file);
}

}  // namespace
}  // namespace qutav::test
