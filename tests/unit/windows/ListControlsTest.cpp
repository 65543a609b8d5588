// Combo boxes and lists in their windows.
#include "windows/SampleDialog.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

LRESULT Ask(const Control& control, UINT message, WPARAM wParam = 0) {
  return SendMessageW(WindowOf(control), message, wParam, 0);
}

std::vector<std::u16string> RowsOf(HWND window, UINT count, UINT length, UINT text) {
  std::vector<std::u16string> rows;
  const auto rowCount = static_cast<WPARAM>(SendMessageW(window, count, 0, 0));
  for (WPARAM i = 0; i < rowCount; ++i) {
    std::wstring row(static_cast<std::size_t>(SendMessageW(window, length, i, 0)), L'\0');
    SendMessageW(window, text, i, reinterpret_cast<LPARAM>(row.data()));
    rows.emplace_back(row.begin(), row.end());
  }
  return rows;
}

std::vector<std::u16string> ComboRows(const ComboBox& combo) {
  return RowsOf(WindowOf(combo), CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

std::vector<std::u16string> ListRows(const ListBox& list) {
  return RowsOf(WindowOf(list), LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
}

HWND EditOf(const ComboBox& combo) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(WindowOf(combo), &parts);
  return parts.hwndItem;
}

class ListControlsTest : public ShownDialogTest {
 protected:
  ListControlsTest() {
    dialog.dropList.onSelectionEnd = [this] { chosen.push_back(dialog.dropList.text); };
    dialog.editable.onSelectionEnd = [this] { chosen.push_back(dialog.editable.text); };
    dialog.listBox.onSelectionChange = [this] {
      chosen.push_back(dialog.listBox.GetRow(dialog.listBox.GetCurSel()));
    };
  }

  SampleDialog dialog;
  std::vector<std::u16string> chosen;
};

TEST_F(ListControlsTest, RowsSelectionAndTextAreThoseOfTheModel) {
  dialog.dropList.SetCurSel(1);
  dialog.editable.SetText(u"C:\\typed.p12");
  dialog.listBox.SetCurSel(0);

  LookAt(dialog, [&] {
    EXPECT_THAT(ComboRows(dialog.dropList), ElementsAre(u"Auto", u"Portrait"));
    EXPECT_EQ(Ask(dialog.dropList, CB_GETCURSEL), 1);
    EXPECT_EQ(TextOf(WindowOf(dialog.editable)), u"C:\\typed.p12");
    EXPECT_EQ(Ask(dialog.editable, CB_GETCURSEL), CB_ERR);
    EXPECT_THAT(ListRows(dialog.listBox), ElementsAre(u"36x36", u"48x48"));
    EXPECT_EQ(Ask(dialog.listBox, LB_GETCURSEL), 0);
  });
}

TEST_F(ListControlsTest, RowsThatAHandlerChangesAreShownWithoutRunningOne) {
  LookAt(dialog, [&] {
    RunEvent([&] {
      dialog.dropList.ResetContent();
      dialog.dropList.AddString(u"Landscape");
      dialog.dropList.SetCurSel(0);
      dialog.editable.SetCurSel(1);
      dialog.listBox.DeleteString(0);
      dialog.listBox.AddString(u"72x72");
      dialog.listBox.SetCurSel(1);
    });

    EXPECT_THAT(ComboRows(dialog.dropList), ElementsAre(u"Landscape"));
    EXPECT_EQ(TextOf(WindowOf(dialog.dropList)), u"Landscape");
    EXPECT_EQ(TextOf(WindowOf(dialog.editable)), u"C:\\b.p12");
    EXPECT_EQ(Ask(dialog.editable, CB_GETCURSEL), 1);
    EXPECT_THAT(ListRows(dialog.listBox), ElementsAre(u"48x48", u"72x72"));
    EXPECT_EQ(Ask(dialog.listBox, LB_GETCURSEL), 1);
  });

  EXPECT_THAT(chosen, ElementsAre());
}

TEST_F(ListControlsTest, AChoiceStaysAChoiceWhenItsTextIsShown) {
  LookAt(dialog, [&] {
    RunEvent([&] { dialog.editable.SetCurSel(1); });

    EXPECT_EQ(dialog.editable.GetCurSel(), 1);
  });
}

TEST_F(ListControlsTest, ASelectionThatIsTakenAwayIsShown) {
  dialog.dropList.SetCurSel(1);
  dialog.listBox.SetCurSel(1);

  LookAt(dialog, [&] {
    RunEvent([&] {
      dialog.dropList.SetCurSel(-1);
      dialog.listBox.SetCurSel(-1);
    });

    EXPECT_EQ(Ask(dialog.dropList, CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(Ask(dialog.listBox, LB_GETCURSEL), LB_ERR);
  });
}

TEST_F(ListControlsTest, TypingIntoAComboReachesTheModel) {
  dialog.editable.SetCurSel(0);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.editable));
                    SendMessageW(EditOf(dialog.editable), EM_SETSEL, 8, 8);
                    TypeText(u"xy");
                  },
                  [&](HWND) {
                    EXPECT_EQ(dialog.editable.text, u"C:\\a.p12xy");
                    EXPECT_EQ(dialog.editable.GetCurSel(), -1);
                    EXPECT_EQ(TextOf(WindowOf(dialog.editable)), u"C:\\a.p12xy");
                  }});

  EXPECT_THAT(chosen, ElementsAre());
}

TEST_F(ListControlsTest, TheArrowKeysChooseInAClosedDropList) {
  dialog.dropList.SetCurSel(0);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.dropList));
                    Strike(VK_DOWN);
                  },
                  [&](HWND) {
                    EXPECT_EQ(dialog.dropList.GetCurSel(), 1);
                    EXPECT_EQ(dialog.dropList.text, u"Portrait");
                  }});

  EXPECT_THAT(chosen, ElementsAre(u"Portrait"));
}

TEST_F(ListControlsTest, ALetterChoosesInAClosedDropList) {
  dialog.dropList.SetCurSel(0);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.dropList));
                    TypeText(u"p");
                  },
                  [&](HWND) { EXPECT_EQ(dialog.dropList.text, u"Portrait"); }});
}

TEST_F(ListControlsTest, EnterChoosesInAnOpenedComboAndLeavesTheDialogOpen) {
  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.editable));
                    Ask(dialog.editable, CB_SHOWDROPDOWN, TRUE);
                    Strike(VK_DOWN);
                    Strike(VK_DOWN);
                  },
                  [&](HWND) { Strike(VK_RETURN); },
                  [&](HWND) {
                    EXPECT_EQ(Ask(dialog.editable, CB_GETDROPPEDSTATE), FALSE);
                    EXPECT_EQ(dialog.editable.text, u"C:\\b.p12");
                    EXPECT_EQ(TextOf(WindowOf(dialog.editable)), u"C:\\b.p12");
                    EXPECT_EQ(dialog.editable.GetCurSel(), 1);
                    EXPECT_FALSE(dialog.HasEnded());
                  }});
}

TEST_F(ListControlsTest, EscInAnOpenedComboBringsItsChoiceBackAndLeavesTheDialogOpen) {
  dialog.dropList.SetCurSel(0);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.dropList));
                    Ask(dialog.dropList, CB_SHOWDROPDOWN, TRUE);
                    Strike(VK_DOWN);
                  },
                  [&](HWND) { Strike(VK_ESCAPE); },
                  [&](HWND) {
                    EXPECT_EQ(Ask(dialog.dropList, CB_GETDROPPEDSTATE), FALSE);
                    EXPECT_EQ(dialog.dropList.text, u"Auto");
                    EXPECT_EQ(TextOf(WindowOf(dialog.dropList)), u"Auto");
                    EXPECT_EQ(Ask(dialog.dropList, CB_GETCURSEL), 0);
                    EXPECT_FALSE(dialog.HasEnded());
                  }});

  EXPECT_THAT(chosen, ElementsAre());
}

TEST_F(ListControlsTest, EscInAnOpenedComboBringsTheTypedTextBack) {
  dialog.editable.SetText(u"C:\\typed.p12");

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.editable));
                    Ask(dialog.editable, CB_SHOWDROPDOWN, TRUE);
                    Strike(VK_DOWN);
                  },
                  [&](HWND) { Strike(VK_ESCAPE); },
                  [&](HWND) {
                    EXPECT_EQ(dialog.editable.text, u"C:\\typed.p12");
                    EXPECT_EQ(TextOf(WindowOf(dialog.editable)), u"C:\\typed.p12");
                  }});
}

TEST_F(ListControlsTest, AHandlerThatRunsWhileAComboIsOpenLeavesItOpen) {
  dialog.dropList.SetCurSel(0);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.dropList));
                    Ask(dialog.dropList, CB_SHOWDROPDOWN, TRUE);
                    Strike(VK_DOWN);
                  },
                  [&](HWND) {
                    RunEvent([&] { dialog.heading.text = u"meanwhile"; });
                    EXPECT_EQ(Ask(dialog.dropList, CB_GETDROPPEDSTATE), TRUE);
                    Strike(VK_RETURN);
                  },
                  [&](HWND) { EXPECT_EQ(dialog.dropList.text, u"Portrait"); }});
}

TEST_F(ListControlsTest, AClickOnARowOfAnOpenedComboChoosesIt) {
  dialog.dropList.SetCurSel(0);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.dropList));
                    Ask(dialog.dropList, CB_SHOWDROPDOWN, TRUE);
                  },
                  [&](HWND) {
                    COMBOBOXINFO parts{};
                    parts.cbSize = sizeof parts;
                    GetComboBoxInfo(WindowOf(dialog.dropList), &parts);
                    const auto height = Ask(dialog.dropList, CB_GETITEMHEIGHT);
                    ClickAt(parts.hwndList, 5, static_cast<int>(height) + 3);
                  },
                  [&](HWND) {
                    EXPECT_EQ(Ask(dialog.dropList, CB_GETDROPPEDSTATE), FALSE);
                    EXPECT_EQ(dialog.dropList.text, u"Portrait");
                  }});

  EXPECT_THAT(chosen, ElementsAre(u"Portrait"));
}

TEST_F(ListControlsTest, AComboOpensAsWideAsItsModelSays) {
  dialog.dropList.AddString(std::u16string(60, u'W'));
  dialog.dropList.FitDropWidth();
  ASSERT_GT(dialog.dropList.DroppedWidth(), 60 * 7);

  LookAt(dialog, [&] {
    EXPECT_EQ(Ask(dialog.dropList, CB_GETDROPPEDWIDTH), dialog.dropList.DroppedWidth());
  });
}

TEST_F(ListControlsTest, ALongTextShowsItsEndWhereTheCaretIsPutThere) {
  LookAt(dialog, [&] {
    RunEvent([&] {
      dialog.editable.SetText(u"C:\\long.p12");
      dialog.editable.MoveCaretToEnd();
    });

    DWORD start = 0;
    SendMessageW(EditOf(dialog.editable), EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    EXPECT_EQ(start, 11u);
  });
}

TEST_F(ListControlsTest, TheRowsOfASortedComboStandInTheModelsOrder) {
  dialog.dropList.sorted = true;
  dialog.dropList.ResetContent();
  for (const char16_t* row : {u"b", u"C", u"a"}) dialog.dropList.AddString(row);

  LookAt(dialog, [&] { EXPECT_THAT(ComboRows(dialog.dropList), ElementsAre(u"a", u"b", u"C")); });
}

TEST_F(ListControlsTest, ADropListTakesNoText) {
  LookAt(dialog, [&] {
    EXPECT_EQ(StyleOf(WindowOf(dialog.dropList)) & 3u, static_cast<DWORD>(CBS_DROPDOWNLIST));
    EXPECT_EQ(StyleOf(WindowOf(dialog.editable)) & 3u, static_cast<DWORD>(CBS_DROPDOWN));
  });
}

TEST_F(ListControlsTest, TheArrowKeysChooseInAList) {
  dialog.listBox.SetCurSel(0);

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.listBox));
                    Strike(VK_DOWN);
                  },
                  [&](HWND) { EXPECT_EQ(dialog.listBox.GetCurSel(), 1); }});

  EXPECT_THAT(chosen, ElementsAre(u"48x48"));
}

TEST_F(ListControlsTest, AClickChoosesARowOfAList) {
  LookAt(dialog, {[&](HWND) {
                    const auto height = static_cast<int>(Ask(dialog.listBox, LB_GETITEMHEIGHT));
                    ClickAt(WindowOf(dialog.listBox), 5, height + 3);
                  },
                  [&](HWND) { EXPECT_EQ(dialog.listBox.GetCurSel(), 1); }});

  EXPECT_THAT(chosen, ElementsAre(u"48x48"));
}

TEST_F(ListControlsTest, AListScrollsAsFarAsItsWidestRow) {
  dialog.listBox.AddString(std::u16string(100, u'W'));
  dialog.listBox.FitListExtent();
  ASSERT_GT(dialog.listBox.HorizontalExtent(), 700);

  LookAt(dialog, [&] {
    EXPECT_EQ(Ask(dialog.listBox, LB_GETHORIZONTALEXTENT), dialog.listBox.HorizontalExtent());

    RunEvent([&] {
      dialog.listBox.DeleteString(2);
      dialog.listBox.FitListExtent();
    });

    EXPECT_LT(Ask(dialog.listBox, LB_GETHORIZONTALEXTENT), 200);
  });
}

TEST_F(ListControlsTest, TextIsMeasuredInTheFontOfItsWindow) {
  LookAt(dialog, [&] {
    const HWND window = WindowOf(dialog.listBox);
    const HDC context = GetDC(window);
    const HGDIOBJ former =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32W(context, L"Portrait", 8, &size);
    SelectObject(context, former);
    ReleaseDC(window, context);

    EXPECT_EQ(ground.FrontEnd().TextWidth(dialog.listBox, u"Portrait"), size.cx);
  });
}

}  // namespace
}  // namespace qutav::test
