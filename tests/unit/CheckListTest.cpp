#include "ServicesTest.h"
#include "framework/CheckList.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CheckListTest : public ::testing::Test {
 protected:
  CheckListTest() {
    for (const char16_t* row : {u"a", u"b", u"c"}) list.InsertRow(row);
    list.onChange = [this] { ++changes; };
  }
  CheckList list;
  int changes = 0;
};

TEST_F(CheckListTest, ANewRowIsNeitherCheckedNorSelectedAndTellsNobody) {
  list.InsertRow(u"d");

  EXPECT_EQ(list.GetCount(), 4);
  EXPECT_FALSE(list.IsChecked(3));
  EXPECT_FALSE(list.Rows().at(3).selected);
  EXPECT_EQ(changes, 0);
}

TEST_F(CheckListTest, ACheckIsAChangeWhoeverMakesIt) {
  list.SetCheck(1, true);
  EXPECT_EQ(changes, 1);

  list.SetCheck(1, false);
  EXPECT_EQ(changes, 2);
}

TEST_F(CheckListTest, ACheckThatWasThereAlreadyIsNoChange) {
  list.SetCheck(1, true);

  list.SetCheck(1, true);
  list.SetCheck(0, false);

  EXPECT_EQ(changes, 1);
}

TEST_F(CheckListTest, ASelectionIsAChangeUnlessItWasThereAlready) {
  list.SetSelected(1, true);
  list.SetSelected(1, true);

  EXPECT_EQ(changes, 1);
}

TEST_F(CheckListTest, SeveralRowsCanBeSelected) {
  list.SetSelected(2, true);
  EXPECT_EQ(list.FirstSelected(), 2);

  list.SetSelected(1, true);
  EXPECT_EQ(list.FirstSelected(), 1);

  list.SetSelected(1, false);
  EXPECT_EQ(list.FirstSelected(), 2);
}

TEST_F(CheckListTest, WithoutASelectionThereIsNoFirst) { EXPECT_EQ(list.FirstSelected(), -1); }

TEST_F(CheckListTest, GivesItsCheckedRowsInTheirOrder) {
  EXPECT_THAT(list.CheckedRows(), IsEmpty());

  list.SetCheck(2, true);
  list.SetCheck(0, true);

  EXPECT_THAT(list.CheckedRows(), ElementsAre(u"a", u"c"));
}

TEST_F(CheckListTest, FindsTheFirstRowOfExactlyAText) {
  list.InsertRow(u"b");

  EXPECT_EQ(list.FindRow(u"b"), 1);
  EXPECT_EQ(list.FindRow(u"B"), -1);
  EXPECT_EQ(list.FindRow(u""), -1);
}

TEST_F(CheckListTest, AUsersClickOnACheckBoxSwitchesItAndSelectsNothing) {
  std::vector<bool> seen;
  list.onChange = [&] { seen.push_back(list.IsChecked(1)); };

  list.ToggleByUser(1);
  EXPECT_THAT(seen, ElementsAre(true, true));  // the change, and the click

  list.ToggleByUser(1);
  EXPECT_FALSE(list.IsChecked(1));
  EXPECT_EQ(list.FirstSelected(), -1);
}

TEST_F(CheckListTest, AUsersClickOnARowSelectsItAloneAndKeepsTheChecks) {
  list.SetCheck(0, true);
  list.SetSelected(0, true);
  list.SetSelected(1, true);

  list.ChooseByUser(2);

  EXPECT_EQ(list.FirstSelected(), 2);
  EXPECT_THAT(list.CheckedRows(), ElementsAre(u"a"));
}

TEST_F(CheckListTest, AClickIsToldEvenWhenItChangesNothing) {
  list.ChooseByUser(1);
  changes = 0;

  list.ChooseByUser(1);

  EXPECT_EQ(changes, 1);
}

TEST_F(CheckListTest, AClickBesideTheRowsTakesTheSelection) {
  list.ChooseByUser(1);

  list.ChooseByUser(-1);

  EXPECT_EQ(list.FirstSelected(), -1);
}

TEST_F(CheckListTest, AListWithoutAHandlerCanBeUsed) {
  list.onChange = nullptr;

  list.ToggleByUser(0);
  list.ChooseByUser(1);

  EXPECT_TRUE(list.IsChecked(0));
  EXPECT_EQ(list.FirstSelected(), 1);
}

TEST_F(CheckListTest, AllRowsCanGo) {
  list.DeleteAllRows();

  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace qutav::test
