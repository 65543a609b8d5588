// A check list in its window.
#include "windows/SampleDialog.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

class CheckListWindowTest : public ShownDialogTest {
 protected:
  CheckListWindowTest() {
    dialog.checkList.onChange = [this] { ++changes; };
  }

  HWND List() { return WindowOf(dialog.checkList); }

  std::vector<std::u16string> Rows() {
    std::vector<std::u16string> rows;
    for (int i = 0; i < ListView_GetItemCount(List()); ++i) {
      wchar_t text[100] = {};
      ListView_GetItemText(List(), i, 0, text, 100);
      const std::wstring row(text);
      rows.emplace_back(row.begin(), row.end());
    }
    return rows;
  }

  bool IsCheckedOnScreen(int row) { return ListView_GetCheckState(List(), row) == 1; }
  bool IsSelectedOnScreen(int row) {
    return ListView_GetItemState(List(), row, LVIS_SELECTED) != 0;
  }

  // A point of a row on its box or its text.
  POINT PointOn(int row, UINT part) {
    RECT place{};
    ListView_GetItemRect(List(), row, &place, LVIR_BOUNDS);
    LVHITTESTINFO at{};
    at.pt = {place.left, (place.top + place.bottom) / 2};
    while (at.pt.x < place.right) {
      if (ListView_HitTest(List(), &at) == row && (at.flags & LVHT_ONITEM) == part) return at.pt;
      ++at.pt.x;
    }
    ADD_FAILURE() << "row " << row << " has no such part";
    return {};
  }

  void ClickOn(int row, UINT part) {
    const POINT point = PointOn(row, part);
    ClickAt(List(), point.x + 2, point.y);
  }

  SampleDialog dialog;
  int changes = 0;
};

TEST_F(CheckListWindowTest, RowsChecksAndSelectionAreThoseOfTheModel) {
  dialog.checkList.SetCheck(0, true);
  dialog.checkList.SetSelected(1, true);

  LookAt(dialog, [&] {
    EXPECT_THAT(Rows(), ElementsAre(u"INTERNET", u"CAMERA"));
    EXPECT_TRUE(IsCheckedOnScreen(0));
    EXPECT_FALSE(IsCheckedOnScreen(1));
    EXPECT_FALSE(IsSelectedOnScreen(0));
    EXPECT_TRUE(IsSelectedOnScreen(1));
  });
}

TEST_F(CheckListWindowTest, ShowingRowsIsNoChange) {
  dialog.checkList.onChange = nullptr;
  dialog.checkList.SetCheck(0, true);
  dialog.checkList.onChange = [this] { ++changes; };

  LookAt(dialog, [&] {
    RunEvent([&] {
      dialog.checkList.InsertRow(u"VIBRATE");
      dialog.heading.text = u"another";
    });

    EXPECT_THAT(Rows(), ElementsAre(u"INTERNET", u"CAMERA", u"VIBRATE"));
    EXPECT_TRUE(IsCheckedOnScreen(0));
  });

  EXPECT_EQ(changes, 0);
}

TEST_F(CheckListWindowTest, ACheckOfTheProgramIsShownAndReportedOnce) {
  LookAt(dialog, [&] {
    RunEvent([&] { dialog.checkList.SetCheck(1, true); });

    EXPECT_TRUE(IsCheckedOnScreen(1));
  });

  EXPECT_EQ(changes, 1);
}

TEST_F(CheckListWindowTest, RowsThatAreTakenAwayGo) {
  LookAt(dialog, [&] {
    RunEvent([&] { dialog.checkList.DeleteAllRows(); });
    EXPECT_THAT(Rows(), ElementsAre());

    RunEvent([&] { dialog.checkList.InsertRow(u"CAMERA"); });
    EXPECT_THAT(Rows(), ElementsAre(u"CAMERA"));
    EXPECT_FALSE(IsCheckedOnScreen(0));
  });

  EXPECT_EQ(changes, 0);
}

TEST_F(CheckListWindowTest, AClickOnABoxChecksItsRow) {
  LookAt(dialog, {[&](HWND) { ClickOn(1, LVHT_ONITEMSTATEICON); },
                  [&](HWND) {
                    EXPECT_TRUE(dialog.checkList.IsChecked(1));
                    EXPECT_TRUE(IsCheckedOnScreen(1));
                    EXPECT_GT(changes, 0);
                  }});
}

TEST_F(CheckListWindowTest, AClickOnTheBoxOfACheckedRowUnchecksIt) {
  dialog.checkList.SetCheck(0, true);
  dialog.checkList.SetCheck(1, true);

  LookAt(dialog, {[&](HWND) { ClickOn(1, LVHT_ONITEMSTATEICON); },
                  [&](HWND) {
                    EXPECT_FALSE(dialog.checkList.IsChecked(1));
                    EXPECT_TRUE(dialog.checkList.IsChecked(0));
                  }});
}

TEST_F(CheckListWindowTest, AClickOnATextSelectsItsRowAlone) {
  dialog.checkList.SetSelected(0, true);
  changes = 0;

  LookAt(dialog, {[&](HWND) { ClickOn(1, LVHT_ONITEMLABEL); },
                  [&](HWND) {
                    EXPECT_EQ(dialog.checkList.FirstSelected(), 1);
                    EXPECT_FALSE(dialog.checkList.IsChecked(1));
                    EXPECT_GT(changes, 0);
                  }});
}

TEST_F(CheckListWindowTest, TheSpaceBarChecksTheRowWithTheFocus) {
  LookAt(dialog, {[&](HWND) {
                    SetFocus(List());
                    ListView_SetItemState(List(), 1, LVIS_FOCUSED | LVIS_SELECTED,
                                          LVIS_FOCUSED | LVIS_SELECTED);
                    Strike(VK_SPACE);
                  },
                  [&](HWND) {
                    EXPECT_TRUE(dialog.checkList.IsChecked(1));
                    EXPECT_FALSE(dialog.checkList.IsChecked(0));
                  }});
}

TEST_F(CheckListWindowTest, TheArrowKeysSelectRows) {
  LookAt(dialog, {[&](HWND) {
                    SetFocus(List());
                    ListView_SetItemState(List(), 0, LVIS_FOCUSED | LVIS_SELECTED,
                                          LVIS_FOCUSED | LVIS_SELECTED);
                    Strike(VK_DOWN);
                  },
                  [&](HWND) { EXPECT_EQ(dialog.checkList.FirstSelected(), 1); }});
}

TEST_F(CheckListWindowTest, ACheckThatAHandlerTakesBackIsNotShown) {
  dialog.checkList.onChange = [&] {
    if (dialog.checkList.IsChecked(0)) dialog.checkList.SetCheck(0, false);
  };

  LookAt(dialog, {[&](HWND) { ClickOn(0, LVHT_ONITEMSTATEICON); },
                  [&](HWND) {
                    EXPECT_FALSE(dialog.checkList.IsChecked(0));
                    EXPECT_FALSE(IsCheckedOnScreen(0));
                  }});
}

TEST_F(CheckListWindowTest, AHandlerMayFillTheListAnewDuringAClick) {
  dialog.checkList.onChange = [&] {
    dialog.checkList.DeleteAllRows();
    dialog.checkList.InsertRow(u"VIBRATE");
  };

  LookAt(dialog, {[&](HWND) { ClickOn(1, LVHT_ONITEMLABEL); },
                  [&](HWND) { EXPECT_THAT(Rows(), ElementsAre(u"VIBRATE")); }});
}

TEST_F(CheckListWindowTest, ADisabledListTakesNoClick) {
  dialog.checkList.enabled = false;

  LookAt(dialog, {[&](HWND) { ClickOn(1, LVHT_ONITEMSTATEICON); },
                  [&](HWND) { EXPECT_FALSE(dialog.checkList.IsChecked(1)); }});
}

TEST_F(CheckListWindowTest, ItIsATableOfOneColumnWithBoxesAndGridLines) {
  LookAt(dialog, [&] {
    EXPECT_EQ(StyleOf(List()) & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_EQ(Header_GetItemCount(ListView_GetHeader(List())), 1);
    const DWORD style = ListView_GetExtendedListViewStyle(List());
    EXPECT_TRUE(style & LVS_EX_GRIDLINES);
    EXPECT_TRUE(style & LVS_EX_CHECKBOXES);
  });
}

TEST_F(CheckListWindowTest, TheHeadingAndTheNameForScreenReadersAreTheCaption) {
  LookAt(dialog, [&] {
    wchar_t heading[50] = {};
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = heading;
    column.cchTextMax = 50;
    ListView_GetColumn(List(), 0, &column);

    EXPECT_STREQ(heading, L"Permissions");
    EXPECT_EQ(TextOf(List()), u"Permissions");
  });
}

TEST_F(CheckListWindowTest, AColumnIsAsWideAsItsListUnlessTheModelSaysOtherwise) {
  LookAt(dialog, [&] {
    const RECT place = PlaceOf(List());
    EXPECT_EQ(ListView_GetColumnWidth(List(), 0), place.right - place.left - 4);
  });
  dialog.checkList.columnWidth = 160;
  LookAt(dialog, [&] { EXPECT_EQ(ListView_GetColumnWidth(List(), 0), 160); });
}

TEST_F(CheckListWindowTest, AColumnIsNeverNarrowerThanItsHeading) {
  dialog.checkList.columnWidth = 20;
  LookAt(dialog, [&] {
    EXPECT_GT(ListView_GetColumnWidth(List(), 0), ListView_GetStringWidth(List(), L"Permissions"));
  });
}

TEST_F(CheckListWindowTest, RowsAreSelectedWholeWhereTheModelSaysSo) {
  const auto styles = [&] { return ListView_GetExtendedListViewStyle(List()); };

  LookAt(dialog, [&] {
    EXPECT_EQ(styles() & (LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT),
              static_cast<DWORD>(LVS_EX_CHECKBOXES));
  });
  dialog.checkList.fullRowSelect = true;
  LookAt(dialog, [&] { EXPECT_TRUE(styles() & LVS_EX_FULLROWSELECT); });
}

}  // namespace
}  // namespace qutav::test
