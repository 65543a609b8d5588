#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/windows/DialogFont.h"
#include "framework/windows/WindowScope.h"
#include "windows/WindowFit.h"

// behind the system's own header
#include <commctrl.h>

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr unsigned kDpi = 96;

// A window of 300 by 200, and what a test puts into it.
class WindowFitTest : public ::testing::Test {
 protected:
  WindowFitTest()
      : window_(CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 300, 200, nullptr, nullptr,
                                nullptr, nullptr)) {}
  ~WindowFitTest() override { DestroyWindow(window_); }

  HWND Add(const wchar_t* className, const wchar_t* text, DWORD style, const RECT& place) {
    HWND child = CreateWindowExW(0, className, text, WS_CHILD | style, place.left, place.top,
                                 place.right - place.left, place.bottom - place.top, window_,
                                 nullptr, nullptr, nullptr);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Handle()), FALSE);
    return child;
  }
  std::vector<std::string> Faults() const { return FaultsOf(window_, kDpi, {10, 10}); }

 private:
  const WindowScope scope_;
  const DialogFont font_{kDpi};
  HWND window_;
};

TEST_F(WindowFitTest, ADialogInOrderHasNoFaults) {
  Add(WC_BUTTONW, L"Frame", BS_GROUPBOX, {10, 10, 290, 100});
  Add(WC_STATICW, L"Name:", 0, {20, 30, 80, 50});
  Add(WC_EDITW, L"", ES_AUTOHSCROLL, {80, 30, 280, 50});
  Add(WC_BUTTONW, L"&Full screen", BS_AUTOCHECKBOX, {20, 60, 280, 80});
  Add(WC_BUTTONW, L"&Close", BS_PUSHBUTTON, {10, 110, 110, 135});

  EXPECT_THAT(Faults(), IsEmpty());
}

TEST_F(WindowFitTest, ATextThatIsWiderThanItsLabelIsAFault) {
  Add(WC_STATICW, L"Incomprehensibilities", 0, {10, 10, 40, 60});

  EXPECT_THAT(Faults(), ElementsAre(HasSubstr("\"Incomprehensibilities\" (Static 0) needs ")));
}

TEST_F(WindowFitTest, ATextThatWrapsToMoreLinesThanItsLabelHasIsAFault) {
  Add(WC_STATICW, L"one two three four five six", 0, {10, 10, 70, 25});

  EXPECT_THAT(Faults(), ElementsAre(HasSubstr(" and has 60 by 15")));
}

TEST_F(WindowFitTest, EveryKindOfButtonNeedsRoomForMoreThanItsText) {
  for (const DWORD style : {BS_PUSHBUTTON, BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON, BS_GROUPBOX}) {
    HWND button = Add(WC_BUTTONW, L"Publish", style, {10, 10, 290, 60});
    SIZE text{};
    HDC context = GetDC(button);
    SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(button, WM_GETFONT, 0, 0)));
    GetTextExtentPoint32W(context, L"Publish", 7, &text);
    ReleaseDC(button, context);
    EXPECT_THAT(Faults(), IsEmpty()) << style;

    SetWindowPos(button, nullptr, 0, 0, text.cx + 2, 50, SWP_NOMOVE | SWP_NOZORDER);

    EXPECT_THAT(Faults(), ::testing::Contains(HasSubstr("\"Publish\" (Button 0) needs "))) << style;
    DestroyWindow(button);
  }
}

TEST_F(WindowFitTest, AFieldMustHoldALine) {
  Add(WC_EDITW, L"", ES_AUTOHSCROLL, {10, 10, 100, 18});

  EXPECT_THAT(Faults(), ElementsAre(HasSubstr("(Edit 0) needs 0 by ")));
}

TEST_F(WindowFitTest, TheLongestRowOfAListWithoutAFieldMustFit) {
  HWND combo = Add(WC_COMBOBOXW, L"", CBS_DROPDOWNLIST, {10, 10, 80, 100});
  SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"short"));
  EXPECT_THAT(Faults(), IsEmpty());

  SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"not quite as short as that"));

  EXPECT_THAT(Faults(), ElementsAre(HasSubstr(" for \"not quite as short as that\" and has ")));
}

TEST_F(WindowFitTest, TheHeadingOfAColumnMustFit) {
  HWND list = Add(WC_LISTVIEWW, L"", LVS_REPORT, {10, 10, 200, 100});
  wchar_t heading[] = L"Supported Languages";
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH;
  column.pszText = heading;
  column.cx = 150;
  ListView_InsertColumn(list, 0, &column);
  EXPECT_THAT(Faults(), IsEmpty());

  ListView_SetColumnWidth(list, 0, 60);

  EXPECT_THAT(Faults(), ElementsAre(HasSubstr("(SysListView32 0) needs ")));
}

TEST_F(WindowFitTest, TabsMustBeVisible) {
  HWND tabs = Add(WC_TABCONTROLW, L"", 0, {10, 10, 290, 100});
  wchar_t title[] = L"Deployment and more";
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = title;
  for (int i = 0; i < 2; ++i) TabCtrl_InsertItem(tabs, i, &item);
  EXPECT_THAT(Faults(), IsEmpty());

  SetWindowPos(tabs, nullptr, 0, 0, 130, 90, SWP_NOMOVE | SWP_NOZORDER);

  EXPECT_THAT(Faults(),
              ::testing::Contains(HasSubstr("does not show the tab \"Deployment and more\"")));
}

TEST_F(WindowFitTest, HiddenWindowsThatCoverOneAnotherAreAFault) {
  Add(WC_BUTTONW, L"A", BS_PUSHBUTTON, {10, 10, 100, 40});
  Add(WC_BUTTONW, L"B", BS_PUSHBUTTON, {99, 39, 190, 69});

  EXPECT_THAT(Faults(), ElementsAre("\"A\" (Button 0) overlaps \"B\" (Button 0)"));
}

TEST_F(WindowFitTest, AFrameMayNotCutItsContent) {
  Add(WC_BUTTONW, L"Frame", BS_GROUPBOX, {10, 10, 100, 80});
  Add(WC_BUTTONW, L"Inside", BS_PUSHBUTTON, {20, 20, 101, 60});

  EXPECT_THAT(Faults(), ElementsAre(HasSubstr("\"Frame\" (Button 0) overlaps \"Inside\"")));
}

TEST_F(WindowFitTest, TheMarginBelongsToNobody) {
  Add(WC_BUTTONW, L"Close", BS_PUSHBUTTON, {9, 10, 100, 40});

  EXPECT_THAT(Faults(), ElementsAre("\"Close\" (Button 0) stands on the margin or outside"));
}

TEST_F(WindowFitTest, AnEmptyWindowIsAFault) {
  Add(WC_EDITW, L"", 0, {10, 10, 10, 40});

  EXPECT_THAT(Faults(), ::testing::Contains("\"\" (Edit 0) is empty"));
}

}  // namespace
}  // namespace qutav::test
