// The dialogs of a publish in their windows: progress, password, timestamp.
#include <thread>

#include "packaging/PublishCancelled.h"
#include "settings_ui/ProgressDlg.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "settings_ui/TimestampRetryDlg.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

constexpr WPARAM kProgressTimer = 667567;

// --- Progress ------------------------------------------------------------------------------------

class ProgressWindowTest : public ShownDialogTest {
 protected:
  ProgressWindowTest() { dialog.SetDoneFlag(&done); }

  HWND Bar() { return WindowOf(Find<ProgressBar>(dialog, u"")); }
  // What a second does.
  void Tick() { SendMessageW(WindowOf(dialog), WM_TIMER, kProgressTimer, 0); }
  void ExpectCentredOn(int x, int y) {
    LookAt(dialog, [&] {
      const RECT place = PlaceOf(WindowOf(dialog));
      EXPECT_NEAR((place.left + place.right) / 2, x, 1);
      EXPECT_NEAR((place.top + place.bottom) / 2, y, 1);
    });
  }

  PolledByte done{0};
  CProgressDlg dialog{nullptr};
};

TEST_F(ProgressWindowTest, ItShowsATextARunningBarAndCancelUnderNoTitle) {
  LookAt(dialog, [&] {
    EXPECT_EQ(TextOf(WindowOf(dialog)), u"");
    EXPECT_EQ(TextOf(WindowOf(Find<Label>(dialog, u"Publishing ..."))), u"Publishing ...");
    EXPECT_TRUE(IsWindowVisible(Bar()));
    EXPECT_TRUE(StyleOf(Bar()) & PBS_MARQUEE);
    EXPECT_EQ(SendMessageW(Bar(), PBM_GETRANGE, FALSE, 0), 100);
    EXPECT_EQ(GetFocus(), WindowOf(Find<Button>(dialog, u"Cancel")));
  });
}

TEST_F(ProgressWindowTest, ATickBeforeTheWorkIsDoneLeavesItOpen) {
  LookAt(dialog, {[&](HWND) { Tick(); }, [&](HWND) { EXPECT_FALSE(dialog.HasEnded()); }});
}

TEST_F(ProgressWindowTest, TheTickAfterTheWorkIsDoneEndsItAndItsTimer) {
  EXPECT_EQ(Use(dialog, {[&](HWND) {
                  done = 1;
                  Tick();
                }}),
            0);

  EXPECT_FALSE(dialog.IsCancelled());
  EXPECT_EQ(PublishCancelled, 0);
  EXPECT_TRUE(dialog.Timers().empty());
}

TEST_F(ProgressWindowTest, ATimerOfTheSystemTicks) {
  LookAt(dialog, [&] { EXPECT_TRUE(KillTimer(WindowOf(dialog), kProgressTimer)); });
}

TEST_F(ProgressWindowTest, AWorkerEndsItByItsByte) {
  std::thread worker;

  EXPECT_EQ(Use(dialog, {[&](HWND) {
                  worker = std::thread([&] { done = 1; });
                  worker.join();
                  Tick();
                }}),
            0);
}

TEST_F(ProgressWindowTest, AClickOnCancelAsksTheWorkToStop) {
  EXPECT_EQ(Use(dialog, {[&](HWND) { ClickAt(WindowOf(Find<Button>(dialog, u"Cancel")), 8, 8); }}),
            kIdCancel);

  EXPECT_TRUE(dialog.IsCancelled());
  EXPECT_EQ(done, 1);
  EXPECT_EQ(PublishCancelled, 1);
}

TEST_F(ProgressWindowTest, CancelTakesTheBarOffTheScreenAtOnce) {
  bool visible = true;
  EXPECT_EQ(Use(dialog, {[&](HWND) {
                  Click(Find<Button>(dialog, u"Cancel"));
                  visible = IsWindowVisible(Bar()) != FALSE;
                }}),
            kIdCancel);

  EXPECT_FALSE(visible);
}

TEST_F(ProgressWindowTest, EnterAndEscPressCancel) {
  for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}}) {
    CProgressDlg shown(nullptr);

    EXPECT_EQ(Use(shown, {[&](HWND) { Strike(key); }}), kIdCancel);
    EXPECT_TRUE(shown.IsCancelled());
  }
}

TEST_F(ProgressWindowTest, ItStandsInTheMiddleOfAnActiveWindowThatIsLarger) {
  SetWindowPos(ground.Owner(), nullptr, 300, 200, 700, 600, SWP_NOZORDER);

  ExpectCentredOn(650, 500);
}

TEST_F(ProgressWindowTest, ItStandsInTheMiddleOfTheDesktopWhenTheActiveWindowIsSmaller) {
  SetWindowPos(ground.Owner(), nullptr, 300, 200, 700, 40, SWP_NOZORDER);

  ExpectCentredOn(GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) / 2);
}

// --- Password ------------------------------------------------------------------------------------

class PasswordWindowTest : public ShownDialogTest {
 protected:
  CSignaturePasswordDlg dialog{nullptr};
};

TEST_F(PasswordWindowTest, WhatIsTypedAndCheckedIsKeptAtEnter) {
  EXPECT_EQ(Use(dialog, {[](HWND) { TypeText(u"p\u00E4ss"); },
                         [](HWND) {
                           Strike(VK_TAB);
                           Strike(VK_SPACE);
                         },
                         [](HWND) { Strike(VK_RETURN); }}),
            kIdOk);

  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"p\u00E4ss");
  EXPECT_EQ(SettingsGet(keys::kRememberPassword), u"true");
}

TEST_F(PasswordWindowTest, EscKeepsNothing) {
  EXPECT_EQ(Use(dialog, {[](HWND) { TypeText(u"secret"); }, [](HWND) { Strike(VK_ESCAPE); }}),
            kIdCancel);

  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePassword));
}

// --- Timestamp -----------------------------------------------------------------------------------

class TimestampWindowTest : public ShownDialogTest {
 protected:
  CTimestampRetryDlg dialog{nullptr};
};

TEST_F(TimestampWindowTest, EachButtonHasItsResult) {
  EXPECT_EQ(Use(dialog, {[&](HWND) { Click(Find<Button>(dialog, u"Retry")); }}), 1);
  EXPECT_EQ(Use(dialog, {[&](HWND) { Click(Find<Button>(dialog, u"Disable Timestamping")); }}), 12);
  EXPECT_EQ(Use(dialog, {[&](HWND) { Click(Find<Button>(dialog, u"Cancel")); }}), 2);
}

TEST_F(TimestampWindowTest, ItBeginsAtRetryWhichEnterPresses) {
  const Button& retry = Find<Button>(dialog, u"Retry");

  LookAt(dialog, [&] {
    EXPECT_EQ(LOWORD(SendMessageW(WindowOf(dialog), DM_GETDEFID, 0, 0)),
              GetDlgCtrlID(WindowOf(retry)));
    EXPECT_EQ(GetFocus(), WindowOf(retry));
  });
  EXPECT_EQ(Use(dialog, {[](HWND) { Strike(VK_RETURN); }}), 1);
}

TEST_F(TimestampWindowTest, ItsTextsAreWrappedWhole) {
  LookAt(dialog, [&] {
    for (const auto& control : dialog.Controls()) {
      if (dynamic_cast<Label*>(control.get()) == nullptr) continue;
      const HWND window = WindowOf(*control);
      RECT shown{};
      GetClientRect(window, &shown);
      RECT needed{0, 0, shown.right, 0};
      const HDC context = GetDC(window);
      const HGDIOBJ former =
          SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
      const std::u16string text = TextOf(window);
      DrawTextW(context, reinterpret_cast<const wchar_t*>(text.c_str()), -1, &needed,
                DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
      SelectObject(context, former);
      ReleaseDC(window, context);
      EXPECT_GE(shown.bottom, needed.bottom);
      EXPECT_GE(shown.right, needed.right);
    }
  });
}

}  // namespace
}  // namespace qutav::test
