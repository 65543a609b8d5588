#include "ServicesTest.h"
#include "framework/ListBox.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

class ListBoxTest : public ServicesTest {
 protected:
  ListBoxTest() {
    for (const char16_t* row : {u"a", u"b", u"c"}) list.AddString(row);
  }
  ListBox list;
};

TEST_F(ListBoxTest, RowsStandInTheOrderInWhichTheyWereAdded) {
  list.AddString(u"Aa");

  EXPECT_THAT(list.Rows(), ElementsAre(u"a", u"b", u"c", u"Aa"));
  EXPECT_EQ(list.GetCount(), 4);
  EXPECT_EQ(list.GetRow(3), u"Aa");
  EXPECT_EQ(list.GetCurSel(), -1);
}

TEST_F(ListBoxTest, SelectsARow) {
  list.SetCurSel(2);

  EXPECT_EQ(list.GetCurSel(), 2);
}

TEST_F(ListBoxTest, AnIndexWithoutARowSelectsNone) {
  for (const int index : {-1, 3}) {
    list.SetCurSel(1);

    list.SetCurSel(index);

    EXPECT_EQ(list.GetCurSel(), -1) << index;
  }
}

TEST_F(ListBoxTest, TheSelectionGoesWithItsRow) {
  list.SetCurSel(1);

  list.DeleteString(1);

  EXPECT_THAT(list.Rows(), ElementsAre(u"a", u"c"));
  EXPECT_EQ(list.GetCurSel(), -1);
}

TEST_F(ListBoxTest, TheSelectionFollowsItsRowWhenOneBeforeItGoes) {
  list.SetCurSel(2);

  list.DeleteString(0);

  EXPECT_EQ(list.GetCurSel(), 1);
  EXPECT_EQ(list.GetRow(list.GetCurSel()), u"c");
}

TEST_F(ListBoxTest, TheSelectionStaysWhenARowBehindItGoes) {
  list.SetCurSel(0);

  list.DeleteString(2);

  EXPECT_EQ(list.GetCurSel(), 0);
}

TEST_F(ListBoxTest, FindsTheFirstRowThatEqualsATextWithoutRegardToCase) {
  list.AddString(u"\u0416\u0443\u043A");
  list.AddString(u"\u0416\u0423\u041A");

  EXPECT_EQ(list.FindStringExact(u"B"), 1);
  EXPECT_EQ(list.FindStringExact(u"\u0436\u0443\u043A"), 3);
  EXPECT_EQ(list.FindStringExact(u"\u0436"), -1);
}

TEST_F(ListBoxTest, OnlyAUsersChoiceRunsTheHandler) {
  std::vector<int> changes;
  list.onSelectionChange = [&] { changes.push_back(list.GetCurSel()); };

  list.SetCurSel(1);
  list.DeleteString(1);
  list.Choose(1);

  EXPECT_THAT(changes, ElementsAre(1));
}

TEST_F(ListBoxTest, ScrollsToTheEndOfItsWidestRowAndACharacter) {
  list.AddString(u"widest");

  list.FitListExtent();

  EXPECT_EQ(list.HorizontalExtent(), 6 * 7 + 7);
}

TEST_F(ListBoxTest, AListThatHasLostItsRowsDoesNotScroll) {
  list.FitListExtent();
  EXPECT_EQ(list.HorizontalExtent(), 7 + 7);
  for (int i = 0; i < 3; ++i) list.DeleteString(0);

  list.FitListExtent();

  EXPECT_EQ(list.HorizontalExtent(), 0);
}

}  // namespace
}  // namespace qutav::test
