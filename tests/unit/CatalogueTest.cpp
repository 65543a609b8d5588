#include <algorithm>
#include <set>

#include "CatalogueTexts.h"
#include "ServicesTest.h"
#include "platform/Catalogue.h"
#include "win/InterfaceLanguage.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::IsSubsetOf;

constexpr LanguageId kTestLanguage = 1062;
constexpr std::uint32_t kFirstDialogText = 9000;

std::vector<std::uint32_t> IdsOf(const CatalogueLanguage& language) {
  std::vector<std::uint32_t> ids;
  for (std::size_t i = 0; i < language.count; ++i) ids.push_back(language.texts[i].id);
  return ids;
}

class CatalogueTest : public ServicesTest {
 protected:
  static std::vector<CatalogueLanguage> Languages() {
    return {kCatalogue, kCatalogue + kCatalogueSize};
  }
  static const CatalogueLanguage& Of(LanguageId id) {
    return *std::find_if(
        kCatalogue, kCatalogue + kCatalogueSize,
        [&](const CatalogueLanguage& language) { return language.language == id; });
  }
  std::u16string TextIn(LanguageId id, std::uint32_t textId) {
    language.SetThreadInterfaceLanguage(id);
    return Message(textId);
  }
};

TEST_F(CatalogueTest, EnglishHoldsThe154RowsAndNoOthersBelowTheDialogs) {
  // 8000 to 8148 without a gap, and five beyond.
  std::vector<std::uint32_t> expected;
  for (std::uint32_t id = 8000; id <= 8148; ++id) expected.push_back(id);
  for (const std::uint32_t id : {8150u, 8202u, 8205u, 8206u, 8207u}) expected.push_back(id);
  std::vector<std::uint32_t> ids = IdsOf(Of(kEnglish));
  std::erase_if(ids, [](std::uint32_t id) { return id >= kFirstDialogText; });

  EXPECT_THAT(ids, ElementsAreArray(expected));
  EXPECT_EQ(ids.size(), 154u);
}

TEST_F(CatalogueTest, NoEnglishTextIsEmpty) {
  for (const std::uint32_t id : IdsOf(Of(kEnglish))) EXPECT_NE(Message(id), u"") << id;
}

TEST_F(CatalogueTest, EveryEnglishTextIsTheOneOfItsRow) {
  EXPECT_EQ(std::size(kEnglishTexts), 154u);

  for (const ExpectedText& row : kEnglishTexts) EXPECT_EQ(Message(row.id), row.text) << row.id;
}

TEST_F(CatalogueTest, LineFeedsStandWhereTheyBelong) {
  EXPECT_EQ(Message(8000),
            u"Before defining your TAV application and installer settings, the publish target of "
            u"your Quorl file must be set to TAV in the Publish Settings\n\nPress OK to change "
            u"your publish target to TAV and open the TAV Application and Installer Settings "
            u"dialog box.");
  EXPECT_EQ(Message(8053),
            u"If the TAV application is not timestamped, it will fail to install when the digital "
            u"certificate expires.\n\nAre you sure you want to disable timestamping?");
  EXPECT_EQ(Message(8060), u"Error creating TAV file.\n\n");
  EXPECT_EQ(Message(8061), u"Invalid application ID.\n\n");
  EXPECT_EQ(Message(8063), u"Invalid file type name.\n\n");
  EXPECT_EQ(Message(8065), u"Invalid file type extension.\n\n");
  EXPECT_EQ(Message(8089), u"Error creating files.\n\n");
  EXPECT_EQ(Message(8119), u"The APK was packaged successfully, but a warning occurred.\n\n");
}

TEST_F(CatalogueTest, OneTextHasACarriageReturnBeforeItsLineFeed) {
  EXPECT_EQ(Message(8088),
            u"TAV for iOS publishing requires files that are not installed.\r\nPlease quit Quorl "
            u"Professional and run the original installer to ensure that all optional components "
            u"are installed.");
}

TEST_F(CatalogueTest, BlanksAtTheEndStay) {
  EXPECT_EQ(Message(8012), u"Creating TAV file failed: ");
  EXPECT_EQ(Message(8016), u"Creating self signed certificate failed: ");
  EXPECT_EQ(Message(8038),
            u"application.initialWindow.minSize is greater than application.initialWindow.maxSize "
            u"");
}

TEST_F(CatalogueTest, DoubleBlanksStay) {
  EXPECT_EQ(Message(8010),
            u"Unable to install the application.  More than one device is connected.");
  EXPECT_EQ(Message(8041), u"Icon file is unsupported format.  Icon must be a PNG file.");
  EXPECT_EQ(Message(8062),
            u"Application ID length must be between 1-212 characters and may include the following "
            u"characters: a-z, A-Z, 0-9, and  dot (.).");
  EXPECT_EQ(Message(8064),
            u"File type name length must be between 1-38 characters and may include the following "
            u"characters: a-z, A-Z, 0-9 and dot (.).  File type name cannot start with a dot or "
            u"digit.");
  EXPECT_EQ(Message(8067),
            u"You have chosen to use custom application descriptor file.  Please specify a "
            u"descriptor file.");
}

TEST_F(CatalogueTest, TheHelpLinksLeadToTheMakersSite) {
  EXPECT_EQ(Message(8026), u"https://www.zenvoka.example/go/learn_tav_using_quorl_en");
  EXPECT_EQ(Message(8094), u"https://www.zenvoka.example/go/learn_TAV_for_iOS_quorl_en");
  EXPECT_EQ(Message(8104),
            u"https://www.zenvoka.example/go/learn_tav_android_using_quorl_vr5_5_en");
}

TEST_F(CatalogueTest, RowsWithTheSameTextStayApart) {
  EXPECT_EQ(Message(8014), u"APK file has been created.");
  EXPECT_EQ(Message(8109), u"APK file has been created.");
  for (const std::uint32_t id : {8096u, 8115u, 8116u}) EXPECT_EQ(Message(id), u"Auto");
}

TEST_F(CatalogueTest, TheTestLanguageMarksEveryEnglishText) {
  EXPECT_THAT(IdsOf(Of(kTestLanguage)), ElementsAreArray(IdsOf(Of(kEnglish))));

  for (const std::uint32_t id : IdsOf(Of(kEnglish))) {
    EXPECT_EQ(TextIn(kTestLanguage, id), u"[su] $_" + TextIn(kEnglish, id) + u"_#") << id;
  }
}

TEST_F(CatalogueTest, EverySetBelongsToARowOfTheLanguageTableAndStandsOnce) {
  const std::set<LanguageId> rows = {1029, 1031, 1033, 3082, 1036, 1040, 1041, 1042, 1043,
                                     1045, 1046, 1049, 1062, 1053, 1055, 2052, 1028};
  std::set<LanguageId> seen;

  for (const CatalogueLanguage& set : Languages()) {
    EXPECT_THAT(rows, Contains(set.language));
    EXPECT_TRUE(seen.insert(set.language).second);
  }

  EXPECT_THAT(seen, Contains(kEnglish));
}

TEST_F(CatalogueTest, EverySetAscendsAndHasOnlyIdsThatEnglishHas) {
  const std::vector<std::uint32_t> english = IdsOf(Of(kEnglish));

  for (const CatalogueLanguage& set : Languages()) {
    const std::vector<std::uint32_t> ids = IdsOf(set);
    EXPECT_TRUE(std::adjacent_find(ids.begin(), ids.end(), std::greater_equal<>()) == ids.end())
        << set.language;
    EXPECT_THAT(ids, IsSubsetOf(english)) << set.language;
  }
}

TEST_F(CatalogueTest, EveryTextHasItsLength) {
  for (const CatalogueLanguage& set : Languages()) {
    for (std::size_t i = 0; i < set.count; ++i) {
      EXPECT_EQ(set.texts[i].length, std::u16string_view(set.texts[i].text).size());
    }
  }
}

TEST_F(CatalogueTest, ALanguageWithoutASetShowsEnglish) { EXPECT_EQ(TextIn(1035, 8117), u"CPU"); }

}  // namespace
}  // namespace qutav::test
