#include "PackagingTest.h"
#include "packaging/PackagerCommand.h"
#include "platform/Text.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class IncludedItemsTest : public PackagingTest {
 protected:
  void SetItems(const std::vector<std::u16string>& items) {
    SettingsSet(keys::kIncludedCount, ToDecimal(static_cast<std::int64_t>(items.size())));
    for (std::size_t i = 0; i < items.size(); ++i) {
      SettingsSet(keys::kIncludedItem + ToDecimal(static_cast<std::int64_t>(i)), items[i]);
    }
  }
  std::u16string Items() { return IncludedItems(missing); }

  std::vector<std::u16string> missing;
};

TEST_F(IncludedItemsTest, AnItemInAFolderBelowTheMovieIsNamedFromTheMoviesFolder) {
  files.Put(u"C:/m/data/levels/one.xml");
  SetItems({u"data/levels/one.xml"});

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"data/levels/one.xml\" ");

  EXPECT_THAT(missing, IsEmpty());
}

TEST_F(IncludedItemsTest, AnItemInTheMoviesFolderItselfIsNamedFromTheFolderWhereItLies) {
  files.Put(u"C:/m/levels.xml");
  SettingsSet(keys::kMovieFolder, u"C:/m/");
  SetItems({u"levels.xml"});

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"levels.xml\" ");
}

TEST_F(IncludedItemsTest, AnItemElsewhereIsNamedFromTheFolderWhereItLies) {
  files.Put(u"D:/shared/sounds.mp3");
  SetItems({u"D:\\shared\\sounds.mp3"});

  EXPECT_EQ(Items(), u" -C \"D:/shared/\" \"sounds.mp3\" ");
}

TEST_F(IncludedItemsTest, AnItemGivenByItsWholePathBelowTheMovieIsNamedFromTheMoviesFolder) {
  files.Put(u"C:/m/data/levels.xml");
  SetItems({u"C:/m/data/levels.xml"});

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"data/levels.xml\" ");
}

TEST_F(IncludedItemsTest, AFolderIsPackagedUnderItsOwnName) {
  files.Put(u"C:/m/data/levels/one.xml");
  SetItems({u"data/levels"});

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"data/levels\" ");
}

TEST_F(IncludedItemsTest, TheMoviesFolderIsComparedAsItIsWritten) {
  files.Put(u"C:/m/data/levels.xml");
  SettingsSet(keys::kMovieFolder, u"C:\\m\\");
  SetItems({u"data/levels.xml"});

  EXPECT_EQ(Items(), u" -C \"C:/m/data/\" \"levels.xml\" ");
}

TEST_F(IncludedItemsTest, TheMoviesFolderIsSearchedFirst) {
  files.Put(u"C:/m/a.txt");
  files.Put(u"C:/current/a.txt");
  SetItems({u"a.txt"});

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"a.txt\" ");
}

TEST_F(IncludedItemsTest, AnItemMissingBesideTheMovieIsSoughtByItself) {
  files.Put(u"C:/current/a.txt");
  SetItems({u"a.txt"});

  EXPECT_EQ(Items(), u" -C \"C:/current/\" \"a.txt\" ");
}

TEST_F(IncludedItemsTest, AMissingItemIsNotedAndTheOthersStay) {
  files.Put(u"C:/m/a.txt");
  files.Put(u"C:/m/c.txt");
  SetItems({u"a.txt", u"gone/b.txt", u"c.txt"});

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"a.txt\"  -C \"C:/m/\" \"c.txt\" ");

  EXPECT_THAT(missing, ElementsAre(u"gone/b.txt"));
}

TEST_F(IncludedItemsTest, AnEmptyItemIsPassedOver) {
  files.Put(u"C:/m/b.txt");
  SetItems({u"", u"b.txt"});

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"b.txt\" ");

  EXPECT_THAT(missing, IsEmpty());
}

TEST_F(IncludedItemsTest, WithoutACountOfAtLeastOneNothingIsIncluded) {
  files.Put(u"C:/m/a.txt");
  SetItems({u"a.txt"});

  for (const char16_t* count : {u"", u"0", u"-1", u"some"}) {
    SettingsSet(keys::kIncludedCount, count);
    EXPECT_EQ(Items(), u"");
  }
}

TEST_F(IncludedItemsTest, ItemsBeyondTheCountAreNotIncluded) {
  files.Put(u"C:/m/a.txt");
  files.Put(u"C:/m/b.txt");
  SetItems({u"a.txt", u"b.txt"});
  SettingsSet(keys::kIncludedCount, u"1");

  EXPECT_EQ(Items(), u" -C \"C:/m/\" \"a.txt\" ");
}

TEST_F(IncludedItemsTest, AFolderThatDiffersFromTheMoviesInCaseOnlyIsAnotherFolder) {
  files.Put(u"C:/M/data/levels.xml");
  SetItems({u"C:/M/data/levels.xml"});

  EXPECT_EQ(Items(), u" -C \"C:/M/data/\" \"levels.xml\" ");
}

}  // namespace
}  // namespace qutav::test
