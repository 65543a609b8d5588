// Controls that are drawn: image buttons, pictures, the progress bar.
#include <memory>
#include <utility>
#include <vector>

#include "windows/SampleDialog.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"
#include "windows/WindowPixels.h"

namespace qutav::test {
namespace {

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kClear = 0x00000000;

std::shared_ptr<const Image> OneColour(std::uint32_t colour) {
  return std::make_shared<const Image>(Image{2, 2, {colour, colour, colour, colour}});
}

// The text of the tooltip that belongs to a window.
std::u16string TooltipOf(HWND window) {
  struct Search {
    HWND tool;
    wchar_t text[100];
  } search{window, {}};
  const auto look = [](HWND other, LPARAM target) -> BOOL {
    auto& wanted = *reinterpret_cast<Search*>(target);
    if (ClassOf(other) != u"tooltips_class32") return TRUE;
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = GetParent(wanted.tool);
    tool.uId = reinterpret_cast<UINT_PTR>(wanted.tool);
    tool.lpszText = wanted.text;
    SendMessageW(other, TTM_GETTEXTW, 100, reinterpret_cast<LPARAM>(&tool));
    return wanted.text[0] == L'\0';
  };
  EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&search));
  const std::wstring text(search.text);
  return {text.begin(), text.end()};
}

// Writes down the orders to a progress bar.
LRESULT CALLBACK NoteMarquee(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                             DWORD_PTR orders) {
  if (message == PBM_SETMARQUEE) {
    reinterpret_cast<std::vector<std::pair<WPARAM, LPARAM>>*>(orders)->push_back({wParam, lParam});
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

class DrawnControlsTest : public ShownDialogTest {
 protected:
  HWND Browse() { return WindowOf(dialog.browse); }
  WindowPixels Look() { return WindowPixels(Browse()); }

  SampleDialog dialog;
};

// --- Image buttons -------------------------------------------------------------------------------

TEST_F(DrawnControlsTest, AnImageButtonDrawsItsOwnImage) {
  std::vector<WindowPixels> looks;
  for (const ButtonImage image : {ButtonImage::kAdd, ButtonImage::kDelete}) {
    dialog.browse.image = image;
    LookAt(dialog, [&] { looks.push_back(Look()); });
  }

  EXPECT_NE(looks[0], looks[1]);
}

TEST_F(DrawnControlsTest, AnImageButtonLightsUpWhileTheMouseIsOverIt) {
  std::vector<WindowPixels> looks;
  LookAt(dialog, {[&](HWND) {
                    looks.push_back(Look());
                    PostMessageW(Browse(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
                  },
                  [&](HWND) {
                    looks.push_back(Look());
                    PostMessageW(WindowOf(dialog), WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
                  },
                  [&](HWND) { looks.push_back(Look()); }});

  EXPECT_NE(looks.at(0), looks.at(1));
  EXPECT_EQ(looks.at(0), looks.at(2));
}

TEST_F(DrawnControlsTest, TheMouseOverTheFieldOfAComboIsAwayFromTheImageButton) {
  LookAt(dialog, {[&](HWND) { PostMessageW(Browse(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3)); },
                  [&](HWND) {
                    EXPECT_TRUE(dialog.browse.focused);
                    const HWND field = GetWindow(WindowOf(dialog.editable), GW_CHILD);
                    ASSERT_NE(field, nullptr);
                    PostMessageW(field, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
                  },
                  [&](HWND) { EXPECT_FALSE(dialog.browse.focused); }});
}

TEST_F(DrawnControlsTest, AMovingMouseReachesAnImageButton) {
  LookAt(dialog, {[&](HWND) { MoveMouse(Browse(), 4, 4); },
                  [&](HWND) { EXPECT_TRUE(dialog.browse.focused); }});
}

TEST_F(DrawnControlsTest, AnImageButtonShowsTheKeyboardFocus) {
  std::vector<WindowPixels> looks;
  LookAt(dialog, [&] {
    looks.push_back(Look());
    SetFocus(Browse());
    looks.push_back(Look());
    SetFocus(WindowOf(dialog.edit));
    looks.push_back(Look());
  });

  EXPECT_NE(looks.at(0), looks.at(1));
  EXPECT_EQ(looks.at(0), looks.at(2));
}

TEST_F(DrawnControlsTest, AnImageButtonLooksDisabledOrHeldDownWhenItIs) {
  std::vector<WindowPixels> looks;
  LookAt(dialog, [&] {
    looks.push_back(Look());
    SendMessageW(Browse(), BM_SETSTATE, TRUE, 0);
    looks.push_back(Look());
    SendMessageW(Browse(), BM_SETSTATE, FALSE, 0);
    RunEvent([&] { dialog.browse.enabled = false; });
    looks.push_back(Look());
    RunEvent([&] { dialog.browse.enabled = true; });
    looks.push_back(Look());
  });

  EXPECT_NE(looks.at(0), looks.at(1));
  EXPECT_NE(looks.at(0), looks.at(2));
  EXPECT_NE(looks.at(1), looks.at(2));
  EXPECT_EQ(looks.at(0), looks.at(3));
}

TEST_F(DrawnControlsTest, AnImageButtonIsClickedByTheMouseAndTheSpaceBar) {
  int clicks = 0;
  dialog.browse.onClick = [&] { ++clicks; };

  LookAt(dialog, {[&](HWND) { ClickAt(Browse(), 5, 5); },
                  [&](HWND) {
                    EXPECT_EQ(clicks, 1);
                    Strike(VK_SPACE);
                  },
                  [&](HWND) { EXPECT_EQ(clicks, 2); }});
}

TEST_F(DrawnControlsTest, EnterPressesTheImageButtonWithTheFocusAndNotTheDefaultOne) {
  int clicks = 0;
  dialog.browse.onClick = [&] { ++clicks; };

  EXPECT_EQ(LookAt(dialog, {[&](HWND) {
                              SetFocus(Browse());
                              Strike(VK_RETURN);
                            },
                            [&](HWND) {
                              EXPECT_EQ(clicks, 1);
                              EXPECT_FALSE(dialog.HasEnded());
                            }}),
            kIdCancel);
}

TEST_F(DrawnControlsTest, AnImageButtonTellsItsCaptionToScreenReadersAndInATooltip) {
  LookAt(dialog, [&] {
    EXPECT_EQ(TextOf(Browse()), u"Browse");
    EXPECT_EQ(TooltipOf(Browse()), u"Browse");
  });
}

// --- Pictures ------------------------------------------------------------------------------------

TEST_F(DrawnControlsTest, APictureHasItsOwnSizeAndItsBackground) {
  dialog.picture.Clear(kLightGrey);

  LookAt(dialog, [&] {
    const WindowPixels shown(WindowOf(dialog.picture));
    EXPECT_EQ(shown.Width(), 40);
    EXPECT_EQ(shown.Height(), 20);
    EXPECT_EQ(shown.At(0, 0), 0xF5F5F5u);
    EXPECT_EQ(shown.At(39, 19), 0xF5F5F5u);
  });
}

TEST_F(DrawnControlsTest, AnImageIsPaintedScaledIntoItsPlace) {
  dialog.picture.Paint(OneColour(kRed), {10, 5, 30, 15});

  LookAt(dialog, [&] {
    const WindowPixels shown(WindowOf(dialog.picture));
    EXPECT_EQ(shown.At(9, 10), 0xFFFFFFu);
    EXPECT_EQ(shown.At(11, 6), 0xFF0000u);
    EXPECT_EQ(shown.At(28, 13), 0xFF0000u);
    EXPECT_EQ(shown.At(30, 10), 0xFFFFFFu);
    EXPECT_EQ(shown.At(20, 4), 0xFFFFFFu);
    EXPECT_EQ(shown.At(20, 15), 0xFFFFFFu);
  });
}

TEST_F(DrawnControlsTest, TheBackgroundIsSeenThroughAnImage) {
  dialog.picture.Clear(kLightGrey);
  dialog.picture.Paint(OneColour(kClear), {0, 0, 40, 20});

  LookAt(dialog, [&] { EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(20, 10), 0xF5F5F5u); });
}

TEST_F(DrawnControlsTest, AnImageThatAHandlerPaintsOrClearsIsShownSo) {
  LookAt(dialog, [&] {
    EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(20, 10), 0xFFFFFFu);

    RunEvent([&] { dialog.picture.Paint(OneColour(kRed), {0, 0, 40, 20}); });
    EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(20, 10), 0xFF0000u);

    RunEvent([&] { dialog.picture.Paint(OneColour(0xFF00FF00), {0, 0, 40, 20}); });
    EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(20, 10), 0x00FF00u);

    RunEvent([&] { dialog.picture.Clear(kWhite); });
    EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(20, 10), 0xFFFFFFu);
  });
}

// Removing an icon clears the preview that a paint of the dialog fills from what is stored.
TEST_F(DrawnControlsTest, APictureThatAHandlerClearsStaysClearUntilTheDialogIsPainted) {
  dialog.picture.onPaint = [&] { dialog.picture.Paint(OneColour(kRed), {0, 0, 40, 20}); };

  LookAt(dialog, [&] {
    const HWND picture = WindowOf(dialog.picture);
    EXPECT_EQ(WindowPixels(picture).At(20, 10), 0xFF0000u);

    RunEvent([&] { dialog.picture.Clear(kWhite); });
    EXPECT_EQ(WindowPixels(picture).At(20, 10), 0xFFFFFFu);
    RunEvent([&] { dialog.heading.text = u"another"; });
    EXPECT_EQ(WindowPixels(picture).At(20, 10), 0xFFFFFFu);

    InvalidateRect(picture, nullptr, FALSE);
    EXPECT_EQ(WindowPixels(picture).At(20, 10), 0xFF0000u);
  });
}

TEST_F(DrawnControlsTest, AnImageThatMovesIsShownAtItsNewPlace) {
  const std::shared_ptr<const Image> image = OneColour(kRed);
  dialog.picture.Paint(image, {0, 0, 10, 10});

  LookAt(dialog, [&] {
    EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(35, 15), 0xFFFFFFu);

    RunEvent([&] { dialog.picture.Paint(image, {30, 10, 40, 20}); });

    EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(35, 15), 0xFF0000u);
  });
}

TEST_F(DrawnControlsTest, AHandlerMayPaintWhenThePictureIsDrawnAnew) {
  int paints = 0;
  dialog.picture.onPaint = [&] {
    ++paints;
    dialog.picture.Paint(OneColour(kRed), {0, 0, 40, 20});
  };

  LookAt(dialog, [&] {
    EXPECT_EQ(WindowPixels(WindowOf(dialog.picture)).At(20, 10), 0xFF0000u);
    const int before = paints;

    InvalidateRect(WindowOf(dialog.picture), nullptr, FALSE);
    UpdateWindow(WindowOf(dialog.picture));

    EXPECT_EQ(paints, before + 1);
  });
}

// --- Progress ------------------------------------------------------------------------------------

TEST_F(DrawnControlsTest, AProgressBarHasItsRangeAndCanRunWithoutAnEnd) {
  dialog.bar.rangeEnd = 70;

  LookAt(dialog, [&] {
    EXPECT_TRUE(StyleOf(WindowOf(dialog.bar)) & PBS_MARQUEE);
    EXPECT_EQ(SendMessageW(WindowOf(dialog.bar), PBM_GETRANGE, FALSE, 0), 70);
  });
}

TEST_F(DrawnControlsTest, AMarqueeStartsAndStopsWithItsModel) {
  std::vector<std::pair<WPARAM, LPARAM>> orders;

  LookAt(dialog, [&] {
    SetWindowSubclass(WindowOf(dialog.bar), NoteMarquee, 1, reinterpret_cast<DWORD_PTR>(&orders));
    RunEvent([&] { dialog.bar.marqueeStep = std::chrono::milliseconds(30); });
    RunEvent([&] { dialog.heading.text = u"another"; });
    RunEvent([&] { dialog.bar.marqueeStep = std::chrono::milliseconds(0); });
  });

  EXPECT_EQ(orders, (std::vector<std::pair<WPARAM, LPARAM>>{{TRUE, 30}, {FALSE, 0}}));
}

TEST_F(DrawnControlsTest, AProgressBarIsHiddenAndDisabledAsItsModelIs) {
  LookAt(dialog, [&] {
    EXPECT_TRUE(IsWindowVisible(WindowOf(dialog.bar)));

    RunEvent([&] {
      dialog.bar.visible = false;
      dialog.bar.enabled = false;
    });

    EXPECT_FALSE(IsWindowVisible(WindowOf(dialog.bar)));
    EXPECT_FALSE(IsWindowEnabled(WindowOf(dialog.bar)));
  });
}

}  // namespace
}  // namespace qutav::test
