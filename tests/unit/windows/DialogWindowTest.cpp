// A dialog's window: what it does to its owner, and how it ends.
#include <stdexcept>

#include "framework/windows/ControlHost.h"
#include "framework/windows/OpenWindows.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "windows/SampleDialog.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"
#include "windows/WindowFit.h"

namespace qutav::test {
namespace {

// A dialog with two buttons, neither of which Enter presses by itself.
class TwoButtons : public CDialog {
 public:
  explicit TwoButtons(WindowHandle parent = nullptr) : CDialog(u"CTwoButtons", 0, parent) {
    first.text = u"First";
    first.onClick = [this] { EndDialog(11); };
    second.text = u"Second";
    second.onClick = [this] { EndDialog(12); };
    SetLayout(layout::Buttons({first, second}));
  }

  Button& first = Add<Button>(u"First");
  Button& second = Add<Button>(u"Second");
};

class DialogWindowTest : public ShownDialogTest {
 protected:
  void ExpectOwnerFree() const {
    EXPECT_TRUE(IsWindowEnabled(ground.Owner()));
    EXPECT_EQ(GetActiveWindow(), ground.Owner());
  }
  static LONG FontHeightOf(HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return font.lfHeight;
  }

  SampleDialog dialog;
};

// --- Modality ------------------------------------------------------------------------------------

TEST_F(DialogWindowTest, TheTopLevelWindowOfItsParentIsItsOwner) {
  const HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50,
                                     ground.Owner(), nullptr, nullptr, nullptr);
  TwoButtons shown(child);

  LookAt(shown, [&] { EXPECT_EQ(GetWindow(WindowOf(shown), GW_OWNER), ground.Owner()); });
}

TEST_F(DialogWindowTest, WithoutAParentTheActiveWindowIsItsOwner) {
  LookAt(dialog, [&] { EXPECT_EQ(GetWindow(WindowOf(dialog), GW_OWNER), ground.Owner()); });
}

TEST_F(DialogWindowTest, ItsOwnerIsDisabledUntilItEndsAndActiveAfterwards) {
  LookAt(dialog, [&] {
    EXPECT_FALSE(IsWindowEnabled(ground.Owner()));
    EXPECT_EQ(GetActiveWindow(), WindowOf(dialog));
  });

  ExpectOwnerFree();
}

TEST_F(DialogWindowTest, AnOwnerThatWasDisabledStaysSo) {
  EnableWindow(ground.Owner(), FALSE);
  TwoButtons shown(ground.Owner());

  LookAt(shown, [] {});

  EXPECT_FALSE(IsWindowEnabled(ground.Owner()));
}

TEST_F(DialogWindowTest, WhatAHandlerThrowsIsShownAndTheDialogGoesOn) {
  dialog.button.onClick = [] { throw std::runtime_error("no such luck"); };
  const ModalUser reader(WindowTitled(u"Zenvoka Kestrow"), [](HWND box) {
    EXPECT_NE(TextOf(GetDlgItem(box, 0xFFFF)).find(u"no such luck"), std::u16string::npos);
    Press(box, IDOK);
  });

  EXPECT_EQ(LookAt(dialog, {[&](HWND) { Click(dialog.button); },
                            [&](HWND) { EXPECT_FALSE(dialog.HasEnded()); }}),
            kIdCancel);

  ExpectOwnerFree();
}

TEST_F(DialogWindowTest, ADialogThatCannotBeFilledLeavesNothingBehind) {
  class Unfillable : public TwoButtons {
    bool OnInitDialog() override { throw std::runtime_error("no such luck"); }
  } unfillable;

  EXPECT_THROW(unfillable.DoModal(), std::runtime_error);

  ExpectOwnerFree();
  EXPECT_EQ(GetLastActivePopup(ground.Owner()), ground.Owner());
}

TEST_F(DialogWindowTest, ADialogThatEndsWhileItIsFilledIsNotShown) {
  class Brief : public TwoButtons {
    bool OnInitDialog() override {
      EndDialog(5);
      return true;
    }
  } brief;

  EXPECT_EQ(brief.DoModal(), 5);

  ExpectOwnerFree();
}

TEST_F(DialogWindowTest, ADialogOfADialogIsOverIt) {
  TwoButtons inner;
  HWND innerOwner = nullptr;
  bool outerEnabled = true;
  const ModalUser innerUser({"the inner dialog",
                             [](HWND window) {
                               return GetDlgItem(window, 1000) != nullptr &&
                                      TextOf(GetDlgItem(window, 1000)).ends_with(u"irst");
                             }},
                            [&](HWND window) {
                              innerOwner = GetWindow(window, GW_OWNER);
                              outerEnabled = IsWindowEnabled(innerOwner) != FALSE;
                              Close(window);
                            });
  dialog.button.onClick = [&] { inner.DoModal(); };

  LookAt(dialog, {[&](HWND window) {
           Click(dialog.button);

           EXPECT_EQ(innerOwner, window);
           EXPECT_FALSE(outerEnabled);
           EXPECT_TRUE(IsWindowEnabled(window));
           EXPECT_EQ(GetActiveWindow(), window);
           EXPECT_EQ(GetFocus(), WindowOf(dialog.button));
           EXPECT_FALSE(IsWindowEnabled(ground.Owner()));
         }});

  ExpectOwnerFree();
}

// --- Ends ----------------------------------------------------------------------------------------

TEST_F(DialogWindowTest, EnterPressesTheDefaultButton) {
  EXPECT_EQ(Use(dialog, {[](HWND) { Strike(VK_RETURN); }}), kIdOk);
}

TEST_F(DialogWindowTest, EnterPressesTheButtonThatTabHasReached) {
  TwoButtons shown;

  EXPECT_EQ(Use(shown, {[](HWND) { Strike(VK_TAB); }, [](HWND) { Strike(VK_RETURN); }}), 12);
}

TEST_F(DialogWindowTest, EnterPressesTheButtonThatHasTheFocusFromTheStart) {
  TwoButtons shown;

  EXPECT_EQ(Use(shown, {[](HWND) { Strike(VK_RETURN); }}), 11);
}

TEST_F(DialogWindowTest, EscCancels) {
  EXPECT_EQ(Use(dialog, {[](HWND) { Strike(VK_ESCAPE); }}), kIdCancel);
}

TEST_F(DialogWindowTest, EscCancelsFromAFieldOfSeveralLines) {
  dialog.edit.style = EditStyle::kMultiLine;

  EXPECT_EQ(Use(dialog, {[](HWND) { Strike(VK_ESCAPE); }}), kIdCancel);
}

TEST_F(DialogWindowTest, TheCloseBoxCancels) {
  EXPECT_EQ(Use(dialog, {[](HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }}),
            kIdCancel);
}

TEST_F(DialogWindowTest, ADialogMayRefuseToBeCancelled) {
  class Stubborn : public TwoButtons {
   public:
    void OnCancel() override { ++refusals; }
    int refusals = 0;
  } stubborn;

  EXPECT_EQ(Use(stubborn, {[](HWND) { Strike(VK_ESCAPE); }, [](HWND window) { Close(window); },
                           [&](HWND) { Click(stubborn.first); }}),
            11);

  EXPECT_EQ(stubborn.refusals, 2);
}

TEST_F(DialogWindowTest, AThreadThatIsToldToEndCancelsTheDialogAndStillEnds) {
  EXPECT_EQ(Use(dialog, {[](HWND) { PostQuitMessage(3); }}), kIdCancel);

  MSG message{};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 3u);
}

TEST_F(DialogWindowTest, AnOwnerThatIsDestroyedTakesTheDialogWithIt) {
  static bool hasHung;
  hasHung = false;
  // Nothing else wakes a loop that does not see the end of its window.
  const UINT_PTR alarm =
      SetTimer(nullptr, 0, 5000, [](HWND, UINT, UINT_PTR, DWORD) { hasHung = true; });
  TwoButtons shown;
  PostMessageW(ground.Owner(), WM_CLOSE, 0, 0);

  EXPECT_EQ(shown.DoModal(), kIdCancel);

  KillTimer(nullptr, alarm);
  EXPECT_FALSE(hasHung);
}

TEST_F(DialogWindowTest, ItCanBeShownAgain) {
  EXPECT_EQ(Use(dialog, {[](HWND) { Strike(VK_RETURN); }}), kIdOk);
  EXPECT_EQ(Use(dialog, {[](HWND) { Strike(VK_ESCAPE); }}), kIdCancel);
}

// --- Look ----------------------------------------------------------------------------------------

TEST_F(DialogWindowTest, ItHasItsTitleAndNoMoreThanACloseBox) {
  CSignaturePasswordDlg titled(nullptr);

  LookAt(titled, [&] {
    EXPECT_EQ(TextOf(WindowOf(titled)), u"Digital signature password");
    EXPECT_EQ(StyleOf(WindowOf(titled)) & (WS_SYSMENU | WS_MINIMIZEBOX | WS_THICKFRAME),
              static_cast<DWORD>(WS_SYSMENU));
  });
}

TEST_F(DialogWindowTest, TheFirstControlThatCanBeUsedHasTheFocusAndItsTextIsSelected) {
  dialog.edit.enabled = false;
  dialog.fixed.text = u"as it stands";

  LookAt(dialog, [&] {
    EXPECT_EQ(GetFocus(), WindowOf(dialog.fixed));
    DWORD from = 99;
    DWORD to = 99;
    SendMessageW(GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&from),
                 reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(from, 0u);
    EXPECT_EQ(to, 12u);
  });
}

// As the system asks for it when a window comes to a screen of twice the resolution. The frame that
// is drawn remains that of the screen where it is, so it is the whole window that is measured.
TEST_F(DialogWindowTest, ItIsLaidOutAnewForAnotherResolutionAtThePlaceThatIsSuggested) {
  LookAt(dialog, [&] {
    const HWND window = WindowOf(dialog);
    const ControlHost& shown = *OpenWindows::HostOf(dialog);
    const unsigned dpi = 2 * GetDpiForWindow(window);
    const LONG before = FontHeightOf(WindowOf(dialog.edit));
    const RECT suggested{30, 20, 500, 400};

    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));

    EXPECT_EQ(shown.Dpi(), dpi);
    EXPECT_NEAR(FontHeightOf(WindowOf(dialog.edit)), 2 * before, 1);
    const Size natural = shown.NaturalSize();
    const RECT place = PlaceOf(window);
    RECT wanted{0, 0, natural.width, natural.height};
    AdjustWindowRectExForDpi(&wanted, StyleOf(window), FALSE,
                             static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE)), dpi);
    EXPECT_EQ(place.right - place.left, wanted.right - wanted.left);
    EXPECT_EQ(place.bottom - place.top, wanted.bottom - wanted.top);
    EXPECT_EQ(place.left, 30);
    EXPECT_EQ(place.top, 20);
    EXPECT_THAT(FaultsOfDialog(window, dpi), ::testing::IsEmpty());
  });
}

TEST_F(DialogWindowTest, ItStandsInTheMiddleOfItsOwner) {
  SetWindowPos(ground.Owner(), nullptr, 200, 100, 800, 700, SWP_NOZORDER);

  LookAt(dialog, [&] {
    const RECT place = PlaceOf(WindowOf(dialog));
    EXPECT_NEAR((place.left + place.right) / 2, 600, 1);
    EXPECT_NEAR((place.top + place.bottom) / 2, 450, 1);
  });
}

TEST_F(DialogWindowTest, ItStaysOnTheScreenThoughItsOwnerIsAtTheEdge) {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);

  for (const POINT corner :
       {POINT{area.left - 20, area.top - 20}, POINT{area.right - 60, area.bottom - 60}}) {
    SetWindowPos(ground.Owner(), nullptr, corner.x, corner.y, 80, 80, SWP_NOZORDER);
    LookAt(dialog, [&] {
      const RECT place = PlaceOf(WindowOf(dialog));
      EXPECT_GE(place.left, area.left);
      EXPECT_GE(place.top, area.top);
      EXPECT_LE(place.right, area.right);
      EXPECT_LE(place.bottom, area.bottom);
    });
  }
}

TEST_F(DialogWindowTest, TabGoesThroughTheControlsInTheirOrderAndBeginsAnew) {
  std::vector<HWND> visited;
  // The focus of a combo whose text can be typed is in its field.
  const auto step = [&](HWND window) {
    const HWND focus = GetFocus();
    visited.push_back(GetParent(focus) == window ? focus : GetParent(focus));
    Strike(VK_TAB);
  };
  std::vector<HWND> wanted;

  ModalUser::Steps steps{[&](HWND window) {
    wanted = {WindowOf(dialog.edit),     WindowOf(dialog.fixed),   WindowOf(dialog.editable),
              WindowOf(dialog.dropList), WindowOf(dialog.listBox), WindowOf(dialog.checkList),
              WindowOf(dialog.box),      WindowOf(dialog.release), WindowOf(dialog.browse),
              WindowOf(dialog.button),   WindowOf(dialog.edit)};
    step(window);
  }};
  for (int i = 0; i < 10; ++i) steps.push_back(step);
  LookAt(dialog, steps);

  EXPECT_EQ(visited, wanted);
}

// --- Timers --------------------------------------------------------------------------------------

TEST_F(DialogWindowTest, ATimerOfTheModelTicks) {
  class Ticking : public TwoButtons {
   public:
    void OnTimer(TimerId id) override { EndDialog(static_cast<int>(id)); }

   private:
    bool OnInitDialog() override {
      SetTimer(77, std::chrono::milliseconds(10));
      return true;
    }
  } ticking;

  EXPECT_EQ(ticking.DoModal(), 77);
}

TEST_F(DialogWindowTest, ATimerThatTheModelKillsTicksNoMore) {
  LookAt(dialog, {[&](HWND) { RunEvent([&] { dialog.SetTimer(5, std::chrono::hours(1)); }); },
                  [&](HWND window) {
                    RunEvent([&] { dialog.KillTimer(5); });
                    EXPECT_FALSE(KillTimer(window, 5));
                  }});
}

}  // namespace
}  // namespace qutav::test
