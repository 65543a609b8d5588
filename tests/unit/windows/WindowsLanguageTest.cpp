// Texts of the built library's resources.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <thread>

#include "platform/Catalogue.h"
#include "platform/Language.h"
#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"

namespace qutav::test {
namespace {

constexpr char16_t kModule[] = u"QuTavAndroidExt";
constexpr LanguageId kTestLanguage = 1062;

class WindowsLanguageTest : public ::testing::Test {
 protected:
  WindowsLanguageTest() {
    static const HMODULE library =
        LoadLibraryW(std::filesystem::path(QUTAV_LIBRARY).make_preferred().c_str());
    EXPECT_NE(library, nullptr);
    language.SetThreadInterfaceLanguage(kEnglish);
  }

  std::u16string Text(std::uint32_t id, const std::u16string& module = kModule) {
    std::u16string buffer(2000, u'?');
    buffer.resize(static_cast<std::size_t>(language.LoadString(module, id, buffer.data(), 2000)));
    return buffer;
  }

  Language& language = SystemLanguage();
};

TEST_F(WindowsLanguageTest, EveryTextOfEveryLanguageArrivesAsTheCatalogueHasIt) {
  ASSERT_GE(kCatalogueSize, 2u);
  for (const auto& row : std::vector(kCatalogue, kCatalogue + kCatalogueSize)) {
    language.SetThreadInterfaceLanguage(row.language);
    EXPECT_GE(row.count, 154u);
    for (const auto& text : std::vector(row.texts, row.texts + row.count)) {
      EXPECT_EQ(Text(text.id), std::u16string(text.text, text.length))
          << row.language << " " << text.id;
    }
  }
}

TEST_F(WindowsLanguageTest, BlanksAndLineEndsStand) {
  EXPECT_EQ(
      Text(8038),
      u"application.initialWindow.minSize is greater than application.initialWindow.maxSize ");
  EXPECT_EQ(Text(8061), u"Invalid application ID.\n\n");
  EXPECT_EQ(Text(8088),
            u"TAV for iOS publishing requires files that are not installed.\r\nPlease quit Quorl "
            u"Professional and run the original installer to ensure that all optional components "
            u"are installed.");
}

TEST_F(WindowsLanguageTest, TheTestLanguageIsMarked) {
  EXPECT_EQ(language.SetThreadInterfaceLanguage(kTestLanguage), kTestLanguage);

  EXPECT_EQ(language.ThreadInterfaceLanguage(), kTestLanguage);
  EXPECT_EQ(Text(8086), u"[su] $_Publish_#");
}

TEST_F(WindowsLanguageTest, ALanguageWithoutTextsComesInEnglish) {
  constexpr LanguageId kHindi = 1081;
  language.SetThreadInterfaceLanguage(kHindi);

  EXPECT_EQ(Text(8086), u"Publish");
}

TEST_F(WindowsLanguageTest, EachThreadHasALanguageOfItsOwn) {
  language.SetThreadInterfaceLanguage(kTestLanguage);
  std::u16string other;

  std::thread([&] {
    language.SetThreadInterfaceLanguage(kEnglish);
    other = Text(8086);
  }).join();

  EXPECT_EQ(other, u"Publish");
  EXPECT_EQ(Text(8086), u"[su] $_Publish_#");
}

TEST_F(WindowsLanguageTest, AnUnknownIdOrModuleIsEmpty) {
  EXPECT_EQ(Text(8149), u"") << "a gap in a block that exists";
  EXPECT_EQ(Text(20000), u"");
  EXPECT_EQ(Text(8086, u"NoSuchModule"), u"");
}

TEST_F(WindowsLanguageTest, ALongerTextIsCutToTheBuffer) {
  char16_t buffer[] = u"????????";

  EXPECT_EQ(language.LoadString(kModule, 8086, buffer, 4), 3);
  EXPECT_EQ(std::u16string(buffer, 5), std::u16string(u"Pub\0?", 5));
  EXPECT_EQ(language.LoadString(kModule, 8086, buffer, 0), 0);
}

TEST_F(WindowsLanguageTest, TheLocaleHasALanguage) { EXPECT_NE(language.ThreadLocale(), 0u); }

}  // namespace
}  // namespace qutav::test
