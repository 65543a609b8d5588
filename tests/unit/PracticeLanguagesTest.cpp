// The lists that the host command has for the settings sheet.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "ServicesTest.h"
#include "descriptor/DomSearch.h"
#include "descriptor/Markets.h"

namespace qutav::test {
namespace {

using ::testing::IsEmpty;
using ::testing::Not;

class PracticeLanguagesTest : public ServicesTest {
 protected:
  ~PracticeLanguagesTest() override { reader.Close(); }

  // A path at which the reader finds the content of one of the files.
  std::u16string FileOf(const std::string& code, const std::string& name) {
    const std::filesystem::path folder = std::filesystem::path(LANGUAGES_FOLDER) / code;
    std::ifstream stream(folder / "configuration" / "Android" / name, std::ios::binary);
    files.Put(u"C:/list.xml", std::string(std::istreambuf_iterator<char>(stream), {}));
    return u"C:\\list.xml";
  }

  std::vector<MarketEntry> MarketsOf(const std::string& code) {
    std::vector<MarketEntry> markets;
    ReadMarkets(reader, markets, FileOf(code, "Markets.xml"));
    reader.Close();
    return markets;
  }

  // The names of a feature file; each has exactly one text, and a description has one too.
  std::vector<std::u16string> FeaturesOf(const std::string& code) {
    reader.InitParser();
    EXPECT_EQ(reader.ParseFile(FileOf(code, "Features.xml")), 0);
    EXPECT_EQ(reader.ElementsOfTag("androidFeatures").size(), 1u);
    const std::vector<std::u16string> names = TextsOf("featureName");
    EXPECT_EQ(TextsOf("description").size(), names.size());
    EXPECT_EQ(reader.ElementsOfTag("feature").size(), names.size());
    reader.Close();
    return names;
  }

  DescriptorDocument reader;

 private:
  std::vector<std::u16string> TextsOf(const char* tag) {
    std::vector<std::u16string> texts;
    for (const xercesc::DOMElement* element : reader.ElementsOfTag(tag)) {
      EXPECT_EQ(element->getChildNodes()->getLength(), 1u);
      texts.push_back(TextOrEmpty(element->getTextContent()));
      EXPECT_THAT(texts.back(), Not(IsEmpty()));
    }
    return texts;
  }
};

TEST_F(PracticeLanguagesTest, EveryLanguageOffersTheSameMarketsUnderNamesOfItsOwn) {
  const std::vector<MarketEntry> english = MarketsOf("en_US");
  const std::vector<MarketEntry> german = MarketsOf("de_DE");

  ASSERT_EQ(english.size(), 3u);
  ASSERT_EQ(german.size(), 3u);
  for (std::size_t i = 0; i < english.size(); ++i) EXPECT_EQ(english[i].url, german[i].url);
  EXPECT_EQ(english[2].name, u"Practice downloads");
  EXPECT_EQ(german[2].name, u"\u00DCbungs-Downloads");
}

TEST_F(PracticeLanguagesTest, EveryLanguageOffersTheSamePermissions) {
  const std::vector<std::u16string> names = {u"INTERNET",
                                             u"ACCESS_NETWORK_STATE",
                                             u"ACCESS_WIFI_STATE",
                                             u"ACCESS_COARSE_LOCATION",
                                             u"ACCESS_FINE_LOCATION",
                                             u"CAMERA",
                                             u"RECORD_AUDIO",
                                             u"READ_EXTERNAL_STORAGE",
                                             u"WRITE_EXTERNAL_STORAGE",
                                             u"READ_CONTACTS",
                                             u"READ_PHONE_STATE",
                                             u"BLUETOOTH",
                                             u"NFC",
                                             u"VIBRATE",
                                             u"WAKE_LOCK"};

  EXPECT_EQ(FeaturesOf("en_US"), names);
  EXPECT_EQ(FeaturesOf("de_DE"), names);
}

}  // namespace
}  // namespace qutav::test
