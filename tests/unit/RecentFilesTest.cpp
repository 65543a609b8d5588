#include "ServicesTest.h"
#include "settings_ui/RecentFiles.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class RecentFilesTest : public ServicesTest {
 protected:
  static constexpr char16_t kListKey[] = u"Software\\Zenvoka\\Quorl \\CertPath Android";

  void PutList(const std::vector<std::u16string>& paths) {
    int number = 0;
    for (const std::u16string& path : paths) {
      registry.keys[kListKey].emplace_back(u"file" + ToDecimal(++number), path);
    }
  }

  ComboBox combo;
};

TEST_F(RecentFilesTest, AChosenPathIsShownAndAdded) {
  EXPECT_TRUE(AddPathToCombo(combo, u"C:\\k\\my.p12"));

  EXPECT_EQ(combo.text, u"C:\\k\\my.p12");
  EXPECT_THAT(combo.Rows(), ElementsAre(u"C:\\k\\my.p12"));
  EXPECT_EQ(combo.GetCurSel(), -1);
  EXPECT_TRUE(combo.IsCaretAtEnd());
}

TEST_F(RecentFilesTest, AnAddedPathTakesItsPlaceInASortedCombo) {
  combo.sorted = true;
  combo.AddString(u"C:\\k\\z.p12");

  AddPathToCombo(combo, u"C:\\k\\a.p12");

  EXPECT_THAT(combo.Rows(), ElementsAre(u"C:\\k\\a.p12", u"C:\\k\\z.p12"));
}

TEST_F(RecentFilesTest, APathThatIsListedInAnotherCaseIsShownButNotAdded) {
  combo.AddString(u"C:\\K\\My.P12");

  EXPECT_FALSE(AddPathToCombo(combo, u"C:\\k\\my.p12"));

  EXPECT_EQ(combo.text, u"C:\\k\\my.p12");
  EXPECT_THAT(combo.Rows(), ElementsAre(u"C:\\K\\My.P12"));
  EXPECT_FALSE(combo.IsCaretAtEnd());
}

TEST_F(RecentFilesTest, APathThatARowContinuesIsShownButNotAdded) {
  combo.AddString(u"C:\\k\\my.p12.old");

  EXPECT_FALSE(AddPathToCombo(combo, u"C:\\k\\my.p12"));

  EXPECT_EQ(combo.text, u"C:\\k\\my.p12");
  EXPECT_THAT(combo.Rows(), ElementsAre(u"C:\\k\\my.p12.old"));
}

TEST_F(RecentFilesTest, APathThatContinuesARowIsAdded) {
  combo.AddString(u"C:\\k\\my.p12");

  EXPECT_TRUE(AddPathToCombo(combo, u"C:\\k\\my.p12.old"));

  EXPECT_THAT(combo.Rows(), ElementsAre(u"C:\\k\\my.p12", u"C:\\k\\my.p12.old"));
}

TEST_F(RecentFilesTest, ListedFilesThatExistBecomeRowsInTheirOrder) {
  files.Put(u"C:/k/two.p12");
  files.Put(u"C:/k/one.p12");
  PutList({u"C:\\k\\two.p12", u"C:\\k\\gone.p12", u"", u"C:\\k\\one.p12"});

  AddRecentFiles(combo, u"CertPath Android");

  EXPECT_THAT(combo.Rows(), ElementsAre(u"C:\\k\\two.p12", u"C:\\k\\one.p12"));
}

TEST_F(RecentFilesTest, AListedFileThatARowContinuesIsLeftOut) {
  files.Put(u"C:/k/my.p12.old");
  files.Put(u"C:/k/my.p12");
  PutList({u"C:\\k\\my.p12.old", u"C:\\k\\my.p12"});

  AddRecentFiles(combo, u"CertPath Android");

  EXPECT_THAT(combo.Rows(), ElementsAre(u"C:\\k\\my.p12.old"));
}

TEST_F(RecentFilesTest, TheLastFileIsSelectedThoughItIsKeptWithForwardSlashes) {
  combo.AddString(u"C:\\k\\one.p12");
  combo.AddString(u"C:\\k\\two.p12");

  SelectRecentFile(combo, u"C:/k/TWO");

  EXPECT_EQ(combo.GetCurSel(), 1);
  EXPECT_EQ(combo.text, u"C:\\k\\two.p12");
}

TEST_F(RecentFilesTest, AFileThatIsNotListedSelectsTheFirstRow) {
  combo.AddString(u"C:\\k\\one.p12");
  combo.AddString(u"C:\\k\\two.p12");

  SelectRecentFile(combo, u"C:/k/other.p12");

  EXPECT_EQ(combo.GetCurSel(), 0);
}

TEST_F(RecentFilesTest, NoLastFileSelectsTheFirstRow) {
  combo.AddString(u"C:\\k\\one.p12");

  SelectRecentFile(combo, u"");

  EXPECT_EQ(combo.text, u"C:\\k\\one.p12");
}

TEST_F(RecentFilesTest, AComboWithoutRowsStaysEmpty) {
  SelectRecentFile(combo, u"C:/k/one.p12");

  EXPECT_EQ(combo.GetCurSel(), -1);
  EXPECT_EQ(combo.text, u"");
}

TEST_F(RecentFilesTest, AllRowsAreSavedButNotTheTypedText) {
  combo.AddString(u"C:\\k\\one.p12");
  combo.AddString(u"C:\\k\\two.p12");
  combo.Type(u"C:\\k\\typed.p12");

  SaveRecentFiles(combo, u"CertPath Android");

  EXPECT_THAT(registry.keys[kListKey],
              ElementsAre(Pair(u"file1", u"C:\\k\\one.p12"), Pair(u"file2", u"C:\\k\\two.p12")));
}

TEST_F(RecentFilesTest, AnEleventhFileOverwritesTheFirst) {
  PutList({u"0", u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9"});
  combo.AddString(u"new");

  SaveRecentFiles(combo, u"CertPath Android");

  EXPECT_EQ(registry.keys[kListKey].size(), 10u);
  EXPECT_THAT(registry.keys[kListKey].front(), Pair(u"file1", u"new"));
}

TEST_F(RecentFilesTest, AComboWithoutRowsDoesNotTouchTheList) {
  SaveRecentFiles(combo, u"CertPath Android");

  EXPECT_THAT(registry.keys, IsEmpty());
}

}  // namespace
}  // namespace qutav::test
