// The settings sheet on a screen that is too small for it.
#include <algorithm>

#include "windows/SheetWindowTest.h"
#include "windows/SmallWorkArea.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

// Without room for the whole sheet.
constexpr int kBottom = 400;

class SheetScrollWindowTest : public SheetWindowTest {
 protected:
  // The sheet's size where it has all the room it wants.
  SIZE NaturalSize() {
    SIZE size{};
    LookAtSheet([&] {
      const RECT place = PlaceOf(Window());
      size = {place.right - place.left, place.bottom - place.top};
    });
    return size;
  }
  SCROLLINFO Bar() {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(Window(), SB_VERT, &info);
    return info;
  }
  void Scroll(int code, int thumb = 0) {
    SendMessageW(Window(), WM_VSCROLL, MAKEWPARAM(code, thumb), 0);
  }
  void Wheel(int delta) { SendMessageW(Window(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0); }
  // How far the sheet's content stands below its place at the top.
  int Shift() {
    RECT tabs = PlaceOf(Tabs());
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&tabs), 2);
    return static_cast<int>(tabs.top) - top_;
  }
  POINT FromTabsTo(const CPropertyPage& page) {
    const RECT tabs = PlaceOf(Tabs());
    const RECT place = PlaceOf(WindowOf(page));
    return {place.left - tabs.left, place.top - tabs.top};
  }
  void LookAtSmall(const std::function<void()>& look) {
    const SmallWorkArea area(kBottom);
    LookAtSheet([&] {
      top_ = 0;
      top_ = Shift();
      look();
    });
  }
  void ExpectAt(int position) {
    EXPECT_EQ(Bar().nPos, position);
    EXPECT_EQ(Shift(), -position);
  }

 private:
  int top_ = 0;
};

TEST_F(SheetScrollWindowTest, ASheetThatFitsHasNoScrollBar) {
  LookAtSheet([&] {
    EXPECT_FALSE(StyleOf(Window()) & WS_VSCROLL);

    Wheel(-120);
    EXPECT_FALSE(StyleOf(Window()) & WS_VSCROLL);
  });
}

TEST_F(SheetScrollWindowTest, TheSheetFitsAScreenOf1024By600) {
  const SmallWorkArea area(600);

  LookAtSheet([&] {
    EXPECT_FALSE(StyleOf(Window()) & WS_VSCROLL);
    EXPECT_LE(PlaceOf(Window()).bottom - PlaceOf(Window()).top, 600);
  });
}

TEST_F(SheetScrollWindowTest, ASheetTallerThanTheScreenIsCutDownToItAndGetsAScrollBar) {
  const SIZE natural = NaturalSize();
  ASSERT_GT(natural.cy, kBottom);

  LookAtSmall([&] {
    const RECT place = PlaceOf(Window());
    EXPECT_EQ(place.right - place.left, natural.cx + GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(place.bottom - place.top, 390);
    EXPECT_TRUE(StyleOf(Window()) & WS_VSCROLL);
    EXPECT_EQ(Bar().nMin, 0);
    EXPECT_EQ(Bar().nMax, natural.cy);
    EXPECT_EQ(Bar().nPage, 390u);
    EXPECT_EQ(Bar().nPos, 0);
  });
}

TEST_F(SheetScrollWindowTest, EveryPartOfTheBarScrollsAsFarAsItShould) {
  const int most = NaturalSize().cy - 390;
  ASSERT_GT(most, 25);

  LookAtSmall([&] {
    Scroll(SB_LINEDOWN);
    ExpectAt(25);
    Scroll(SB_LINEUP);
    ExpectAt(0);
    Scroll(SB_LINEUP);
    ExpectAt(0);
    Scroll(SB_PAGEDOWN);
    ExpectAt(std::min(100, most));
    Scroll(SB_BOTTOM);
    ExpectAt(most);
    Scroll(SB_PAGEDOWN);
    ExpectAt(most);
    Scroll(SB_PAGEUP);
    ExpectAt(std::max(0, most - 100));
    Scroll(SB_THUMBTRACK, 7);
    ExpectAt(7);
    Scroll(SB_THUMBPOSITION, 20);
    ExpectAt(7);
    Scroll(SB_ENDSCROLL);
    ExpectAt(7);
    Scroll(SB_TOP);
    ExpectAt(0);
  });
}

TEST_F(SheetScrollWindowTest, TheWheelScrollsAPixelForEachOfItsSteps) {
  const int most = NaturalSize().cy - 390;

  LookAtSmall([&] {
    Wheel(-10);
    ExpectAt(10);
    Wheel(4);
    ExpectAt(6);
    Wheel(120);
    ExpectAt(0);
    Wheel(-30000);
    ExpectAt(most);
  });
}

TEST_F(SheetScrollWindowTest, TheWheelOverAPageScrollsTheSheet) {
  LookAtSmall([&] {
    SendMessageW(WindowOf(Page(0)), WM_MOUSEWHEEL, MAKEWPARAM(0, -10), 0);

    ExpectAt(10);
  });
}

// The first page shows where pages stand below the tabs.
TEST_F(SheetScrollWindowTest, APageThatIsTurnedToWhileTheSheetIsScrolledStandsBelowItsTabs) {
  const SmallWorkArea area(kBottom);
  POINT before{};
  LookAtSheet({[&](HWND) {
                 before = FromTabsTo(Page(0));
                 RECT below{};
                 GetClientRect(Tabs(), &below);
                 TabCtrl_AdjustRect(Tabs(), FALSE, &below);
                 EXPECT_EQ(before.x, below.left);
                 EXPECT_EQ(before.y, below.top);
                 Scroll(SB_LINEDOWN);
                 RunEvent([&] { Sheet().SetActivePage(1); });
               },
               [&](HWND) {
                 EXPECT_EQ(Bar().nPos, 25);
                 EXPECT_EQ(FromTabsTo(Page(1)).x, before.x);
                 EXPECT_EQ(FromTabsTo(Page(1)).y, before.y);
                 StrikeWith(VK_CONTROL, VK_TAB);
               },
               [&](HWND) {
                 EXPECT_EQ(Sheet().GetActiveIndex(), 2);
                 EXPECT_EQ(FromTabsTo(Page(2)).x, before.x);
                 EXPECT_EQ(FromTabsTo(Page(2)).y, before.y);
               }});
}

TEST_F(SheetScrollWindowTest, APageThatIsTurnedToFarDownIsInViewAfterScrollingBack) {
  const SmallWorkArea area(kBottom);
  POINT before{};
  LookAtSheet({[&](HWND) {
                 before = FromTabsTo(Page(0));
                 Scroll(SB_BOTTOM);
                 RunEvent([&] { Sheet().SetActivePage(2); });
               },
               [&](HWND) {
                 Scroll(SB_TOP);
                 RunEvent([&] { Sheet().SetActivePage(0); });
               },
               [&](HWND) {
                 EXPECT_EQ(FromTabsTo(Page(0)).y, before.y);
                 EXPECT_GT(PlaceOf(WindowOf(Page(0))).top, PlaceOf(Window()).top);
               }});
}

TEST_F(SheetScrollWindowTest, TheButtonsCanBeScrolledIntoView) {
  LookAtSmall([&] {
    EXPECT_GT(PlaceOf(Button(IDOK)).bottom, PlaceOf(Window()).bottom);

    Scroll(SB_BOTTOM);

    EXPECT_LE(PlaceOf(Button(IDOK)).bottom, PlaceOf(Window()).bottom);
  });
}

}  // namespace
}  // namespace qutav::test
