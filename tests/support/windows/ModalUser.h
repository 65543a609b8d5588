// What a user does in a window while the test is inside the modal call that shows it.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/windows/System.h"

namespace qutav::test {

/// What a `ModalUser` waits for: the first visible and enabled window for which `fits` is true.
struct WantedWindow {
  std::string description;  ///< for the failure's text
  std::function<bool(HWND)> fits;
};

/// A window with exactly this title.
WantedWindow WindowTitled(const std::u16string& title);

/// A window of the class that all dialogs and message boxes have.
WantedWindow AnyDialog();

/// Acts in a window while a modal call holds the test. Make one before the call, and keep it until
/// the call has returned:
///
///     const ModalUser user(WindowTitled(u"Question"), [](HWND box) { Press(box, IDCANCEL); });
///     EXPECT_EQ(frontEnd.ShowMessage(question), kIdCancel);
///
/// It looks around at every tick of a timer, which the message loop of the modal call delivers;
/// nothing sleeps, and there is no second thread. Of the top-level windows of its thread it knows
/// only those that came after it. Once it has found its window it runs the action, one time.
///
/// Several actions are steps: each runs at a tick of its own, when what the one before it has
/// posted or struck has been dealt with, and the window can be used.
///
/// - Without such a window the test fails: at the end of this object's life, or when its patience
///   has run out. It fails too when the modal call ends before all steps are taken.
/// - From then on, and also when the action has been run and this object still lives when the
///   patience runs out, it closes whatever enabled window has come after it, one after the other,
///   until the modal call returns. The failure lists these windows. So no test hangs.
/// - Several users wait side by side, each for a window of its own: make one for the dialog and one
///   for the box that the dialog will show. They need not be made in the order of the windows.
/// - An action may itself make a modal call, with a user of its own around it.
/// - Expectations belong into the action; an `ASSERT_` ends the action only.
class ModalUser {
 public:
  using Action = std::function<void(HWND)>;
  using Steps = std::vector<Action>;

  /// Half a minute: far more than any window takes on a loaded machine.
  static constexpr int kPatience = 1500;

  ModalUser(WantedWindow wanted, Action action, int patienceInTicks = kPatience);
  ModalUser(WantedWindow wanted, Steps steps, int patienceInTicks = kPatience);
  ~ModalUser();
  ModalUser(const ModalUser&) = delete;
  ModalUser& operator=(const ModalUser&) = delete;

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD);
  void Tick();
  void FindWindow();
  void TakeStep();
  void GiveUp();
  bool HasActed() const { return taken_ == steps_.size(); }
  std::vector<HWND> NewWindows() const;

  WantedWindow wanted_;
  Steps steps_;
  int patience_;
  HWND window_ = nullptr;
  std::size_t taken_ = 0;
  bool acting_ = false;
  bool failed_ = false;
  std::vector<HWND> known_;
  UINT_PTR timer_ = 0;
};

/// A window's title or a control's text.
std::u16string TextOf(HWND window);

/// The name of a window's class.
std::u16string ClassOf(HWND window);

/// The first window inside another, at whatever depth, of a class; null when there is none.
HWND Descendant(HWND window, const std::u16string& className);

/// Puts a text into a control, as if it had been typed.
void SetText(HWND control, const std::u16string& text);

/// Presses a button of a dialog by its number, as a click does.
void Press(HWND dialog, int button);

}  // namespace qutav::test
