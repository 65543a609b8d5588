// The settings sheet in the system's own property sheet, in every language: the area that the
// system gives to a page holds it, and the sheet's tabs and buttons hold their texts. A sheet that
// is too tall for the screen is cut down to it.
#include <cstdlib>

#include "AllDialogs.h"
#include "SheetTest.h"
#include "framework/windows/NativeFrontEnd.h"
#include "win/InterfaceLanguage.h"
#include "windows/ModalUser.h"
#include "windows/SmallWorkArea.h"
#include "windows/WindowFit.h"

// behind the system's own header
#include <commctrl.h>
// behind commctrl.h
#include <prsht.h>

namespace qutav::test {
namespace {

using ::testing::IsEmpty;

constexpr int kSheetMargin = 3;  // in pixels at 96 DPI

std::vector<std::string> FaultsOfShown(HWND dialog) {
  return FaultsOfDialog(dialog, GetDpiForWindow(dialog));
}

std::vector<std::string> FaultsOfSheet(HWND sheet) {
  const unsigned dpi = GetDpiForWindow(sheet);
  const int margin = MulDiv(kSheetMargin, static_cast<int>(dpi), 96);
  return FaultsOf(sheet, dpi, {margin, margin});
}

class NativeWindowFitTest : public SheetTest,
                            public ::testing::WithParamInterface<const char16_t*> {
 protected:
  NativeWindowFitTest() {
    host.languageCode = GetParam();
    EnterInterfaceLanguage(call);
    TheServices().frontEnd = &native;
  }

  // Looks at every page of the sheet.
  void ExpectNoFaults(int pages) {
    const ModalUser user(AnyDialog(), [&](HWND sheet) {
      EXPECT_EQ(TabCtrl_GetItemCount(PropSheet_GetTabControl(sheet)), pages);
      EXPECT_THAT(FaultsOfSheet(sheet), IsEmpty());
      for (int i = 0; i < pages; ++i) {
        PropSheet_SetCurSel(sheet, nullptr, i);
        EXPECT_THAT(FaultsOfShown(PropSheet_GetCurrentPageHwnd(sheet)), IsEmpty()) << i;
      }
      Press(sheet, IDCANCEL);
    });
    EXPECT_TRUE(OpenSettingsSheet(nullptr, 0));
  }

  HostCallContext call;
  NativeFrontEnd native;
};

TEST(NativeWindowScreenTest, HasTheResolutionOfItsSession) {
  const char* dpi = std::getenv("QUTAV_TEST_DPI");

  ASSERT_NE(dpi, nullptr);
  EXPECT_EQ(std::to_string(GetDpiForSystem()), dpi);
}

TEST_P(NativeWindowFitTest, NothingIsCutInADialog) {
  for (const auto& dialog : DialogsAndPages()) {
    if (dynamic_cast<const CPropertyPage*>(dialog.get()) != nullptr) continue;
    const ModalUser user(AnyDialog(), [&](HWND window) {
      EXPECT_THAT(FaultsOfShown(window), IsEmpty()) << ToUtf8(dialog->ClassName());
      PostMessageW(window, WM_CLOSE, 0, 0);
    });
    dialog->DoModal();
  }
}

TEST_P(NativeWindowFitTest, NothingIsCutOnTheAndroidForm) { ExpectNoFaults(5); }

TEST_P(NativeWindowFitTest, NothingIsCutOnTheIosForm) {
  UseIosForm();

  ExpectNoFaults(4);
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, NativeWindowFitTest,
                         ::testing::Values(u"cs_CZ", u"de_DE", u"en_US", u"es_ES", u"fr_FR",
                                           u"it_IT", u"ja_JP", u"ko_KR", u"nl_NL", u"pl_PL",
                                           u"pt_BR", u"ru_RU", u"su_DO", u"sv_SE", u"tr_TR",
                                           u"zh_CN", u"zh_TW"),
                         [](const auto& code) { return ToUtf8(code.param); });

// --- Height --------------------------------------------------------------------------------------

class NativeWindowHeightTest : public SheetTest {
 protected:
  NativeWindowHeightTest() { TheServices().frontEnd = &native; }

  static SIZE SizeOf(HWND sheet) {
    RECT place{};
    GetWindowRect(sheet, &place);
    return {place.right - place.left, place.bottom - place.top};
  }
  static bool HasBar(HWND sheet) { return (GetWindowLongW(sheet, GWL_STYLE) & WS_VSCROLL) != 0; }
  static SCROLLINFO BarOf(HWND sheet) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(sheet, SB_VERT, &info);
    return info;
  }
  static void Look(const std::function<void(HWND)>& look) {
    const ModalUser user(AnyDialog(), [&](HWND sheet) {
      look(sheet);
      Press(sheet, IDCANCEL);
    });
    EXPECT_TRUE(OpenSettingsSheet(nullptr, 0));
  }
  static SIZE NaturalSize() {
    SIZE size{};
    Look([&](HWND sheet) { size = SizeOf(sheet); });
    return size;
  }
  // With a bar, in a work area that ends there.
  static void ExpectCut(HWND sheet, const SIZE& natural, int bottom) {
    EXPECT_TRUE(HasBar(sheet));
    const int bar = GetSystemMetricsForDpi(SM_CXVSCROLL, GetDpiForWindow(sheet));
    EXPECT_EQ(SizeOf(sheet).cx, natural.cx + bar);
    EXPECT_EQ(SizeOf(sheet).cy, bottom - 10);
    EXPECT_EQ(BarOf(sheet).nPage, static_cast<UINT>(bottom - 10));
    EXPECT_EQ(BarOf(sheet).nMin, 0);
    EXPECT_EQ(BarOf(sheet).nMax, natural.cy);
    EXPECT_EQ(BarOf(sheet).nPos, 0);
  }
  static void ExpectWhole(HWND sheet, const SIZE& natural) {
    EXPECT_FALSE(HasBar(sheet));
    EXPECT_EQ(SizeOf(sheet).cx, natural.cx);
    EXPECT_EQ(SizeOf(sheet).cy, natural.cy);
  }

  NativeFrontEnd native;
};

TEST_F(NativeWindowHeightTest, ASheetAsTallAsTheScreenHasNoBar) {
  const SIZE natural = NaturalSize();
  const SmallWorkArea area(natural.cy);

  Look([&](HWND sheet) { ExpectWhole(sheet, natural); });
}

TEST_F(NativeWindowHeightTest, ASheetTallerThanTheScreenByAPixelIsCutDownAndGetsABar) {
  const SIZE natural = NaturalSize();
  const int bottom = natural.cy - 1;
  const SmallWorkArea area(bottom);

  Look([&](HWND sheet) { ExpectCut(sheet, natural, bottom); });
}

// At the usual resolution it fits.
TEST_F(NativeWindowHeightTest, OnAScreenOf1024By600TheSheetIsWholeOrCutTo590) {
  const SIZE natural = NaturalSize();
  const SmallWorkArea area(600);

  Look([&](HWND sheet) {
    EXPECT_EQ(HasBar(sheet), GetDpiForWindow(sheet) > 96);
    if (HasBar(sheet)) {
      ExpectCut(sheet, natural, 600);
    } else {
      ExpectWhole(sheet, natural);
    }
  });
}

}  // namespace
}  // namespace qutav::test
