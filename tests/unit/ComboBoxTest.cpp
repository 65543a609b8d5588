#include "ServicesTest.h"
#include "framework/ComboBox.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ComboBoxTest : public ServicesTest {
 protected:
  void Fill(std::initializer_list<const char16_t*> rows) {
    for (const char16_t* row : rows) combo.AddString(row);
  }
  ComboBox combo;
};

TEST_F(ComboBoxTest, StartsWithoutRowsChoiceOrText) {
  EXPECT_EQ(combo.GetCount(), 0);
  EXPECT_EQ(combo.GetCurSel(), -1);
  EXPECT_EQ(combo.text, u"");
  EXPECT_EQ(combo.DroppedWidth(), 0);
}

TEST_F(ComboBoxTest, RowsStandInTheOrderInWhichTheyWereAdded) {
  EXPECT_EQ(combo.AddString(u"b"), 0);
  EXPECT_EQ(combo.AddString(u"a"), 1);

  EXPECT_THAT(combo.Rows(), ElementsAre(u"b", u"a"));
  EXPECT_EQ(combo.GetRow(1), u"a");
}

TEST_F(ComboBoxTest, ASortedComboPutsARowAtItsPlaceWithoutRegardToCase) {
  combo.sorted = true;

  EXPECT_EQ(combo.AddString(u"beta"), 0);
  EXPECT_EQ(combo.AddString(u"Alpha"), 0);
  EXPECT_EQ(combo.AddString(u"Gamma"), 2);
  EXPECT_EQ(combo.AddString(u"BETA2"), 2);

  EXPECT_THAT(combo.Rows(), ElementsAre(u"Alpha", u"beta", u"BETA2", u"Gamma"));
}

TEST_F(ComboBoxTest, ASortedComboKeepsEqualRowsInTheOrderOfAdding) {
  combo.sorted = true;
  Fill({u"a", u"A"});

  EXPECT_THAT(combo.Rows(), ElementsAre(u"a", u"A"));
}

TEST_F(ComboBoxTest, ARowCanBeInsertedAgainstTheOrderOfASortedCombo) {
  combo.sorted = true;
  Fill({u"a", u"b"});

  combo.InsertString(0, u"z");

  EXPECT_THAT(combo.Rows(), ElementsAre(u"z", u"a", u"b"));
}

TEST_F(ComboBoxTest, TheChoiceStaysWithItsRowWhenOneIsInsertedBeforeIt) {
  Fill({u"a", u"b"});
  combo.SetCurSel(1);

  combo.InsertString(1, u"new");
  EXPECT_EQ(combo.GetCurSel(), 2);

  combo.InsertString(3, u"last");
  EXPECT_EQ(combo.GetCurSel(), 2);
  EXPECT_EQ(combo.text, u"b");
}

TEST_F(ComboBoxTest, WithoutAChoiceInsertingMakesNone) {
  combo.InsertString(0, u"a");

  EXPECT_EQ(combo.GetCurSel(), -1);
}

TEST_F(ComboBoxTest, ChoosingARowShowsIt) {
  Fill({u"a", u"b"});

  combo.SetCurSel(1);

  EXPECT_EQ(combo.GetCurSel(), 1);
  EXPECT_EQ(combo.text, u"b");
}

TEST_F(ComboBoxTest, AnIndexWithoutARowClearsChoiceAndText) {
  Fill({u"a", u"b"});
  for (const int index : {-1, 2}) {
    combo.SetCurSel(0);

    combo.SetCurSel(index);

    EXPECT_EQ(combo.GetCurSel(), -1) << index;
    EXPECT_EQ(combo.text, u"") << index;
  }
}

TEST_F(ComboBoxTest, ATextThatTheProgramShowsLeavesTheChoice) {
  Fill({u"a", u"b"});
  combo.SetCurSel(1);

  combo.SetText(u"other");

  EXPECT_EQ(combo.text, u"other");
  EXPECT_EQ(combo.GetCurSel(), 1);
}

TEST_F(ComboBoxTest, TypingTakesTheChoiceAwayEvenWhenItReadsLikeARow) {
  Fill({u"a", u"b"});
  combo.SetCurSel(1);

  combo.Type(u"b");

  EXPECT_EQ(combo.text, u"b");
  EXPECT_EQ(combo.GetCurSel(), -1);
}

TEST_F(ComboBoxTest, AResetTakesRowsChoiceAndText) {
  Fill({u"a"});
  combo.SetCurSel(0);

  combo.ResetContent();

  EXPECT_THAT(combo.Rows(), IsEmpty());
  EXPECT_EQ(combo.GetCurSel(), -1);
  EXPECT_EQ(combo.text, u"");
}

TEST_F(ComboBoxTest, FindsTheFirstRowThatBeginsWithATextWithoutRegardToCase) {
  Fill({u"C:\\other.p12", u"C:\\Keys\\a.p12.old", u"C:\\Keys\\a.p12"});

  EXPECT_EQ(combo.FindString(u"c:\\keys\\A.P12"), 1);
  EXPECT_EQ(combo.FindString(u"C:\\Keys\\a.p12.older"), -1);
  EXPECT_EQ(combo.FindString(u"Keys"), -1);
}

TEST_F(ComboBoxTest, FindsTheFirstRowThatEqualsATextWithoutRegardToCase) {
  Fill({u"\u00C4pfel und Birnen", u"\u00C4PFEL", u"\u00E4pfel"});

  EXPECT_EQ(combo.FindStringExact(u"\u00E4pfel"), 1);
  EXPECT_EQ(combo.FindStringExact(u"\u00E4pfe"), -1);
}

TEST_F(ComboBoxTest, FindsNothingAmongNoRows) {
  EXPECT_EQ(combo.FindString(u"a"), -1);
  EXPECT_EQ(combo.FindStringExact(u"a"), -1);
}

TEST_F(ComboBoxTest, OnlyAUsersChoiceRunsTheHandler) {
  Fill({u"a", u"b"});
  std::vector<int> ends;
  combo.onSelectionEnd = [&] { ends.push_back(combo.GetCurSel()); };

  combo.SetCurSel(0);
  combo.SetText(u"x");
  combo.Type(u"y");
  combo.Choose(1);
  combo.Choose(1);

  EXPECT_THAT(ends, ElementsAre(1, 1));
  EXPECT_EQ(combo.text, u"b");
}

TEST_F(ComboBoxTest, TheOpenedListIsAsWideAsItsWidestRowAndAZero) {
  Fill({u"four", u"sixsix", u"one"});

  combo.FitDropWidth();

  EXPECT_EQ(combo.DroppedWidth(), 6 * 7 + 7);
}

TEST_F(ComboBoxTest, AComboWithoutRowsKeepsTheWidthOfItsOpenedList) {
  Fill({u"four"});
  combo.FitDropWidth();
  combo.ResetContent();

  combo.FitDropWidth();

  EXPECT_EQ(combo.DroppedWidth(), 5 * 7);
}

}  // namespace
}  // namespace qutav::test
