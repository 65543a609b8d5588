// What makes a window modal.
#pragma once

#include <functional>
#include <vector>

#include "framework/CDialog.h"
#include "platform/windows/System.h"

namespace qutav {

/// The first visible window of this thread that no other one owns; null without one.
HWND MainWindowOfThread();

/// The top-level window to which a dialog over `parent` belongs; without a parent, the active one
/// or, while the user is in another program, the thread's main window.
HWND OwnerFor(WindowHandle parent);

/// Takes input away from all windows of the thread for as long as it lives: a host that took input
/// would call us again from within. Those that had none keep having none. To be made before the
/// modal window, and to go before it, or another program's window would become the active one.
class DisabledWindows {
 public:
  DisabledWindows();
  ~DisabledWindows();
  DisabledWindows(const DisabledWindows&) = delete;
  DisabledWindows& operator=(const DisabledWindows&) = delete;

 private:
  std::vector<HWND> windows_;
};

/// Destroys a model at its own end, also when an exception is on its way.
class DestroyedModel {
 public:
  explicit DestroyedModel(CDialog& dialog) : dialog_(dialog) {}
  ~DestroyedModel() { dialog_.Destroy(); }
  DestroyedModel(const DestroyedModel&) = delete;
  DestroyedModel& operator=(const DestroyedModel&) = delete;

 private:
  CDialog& dialog_;
};

/// Deals with the keys of a dialog (`IsDialogMessageW`); true when the message needs nothing more.
using KeyFilter = std::function<bool(MSG&)>;

/// Runs the thread's messages until the dialog has ended. A thread that is told to end, and a
/// window that somebody destroys, cancel the dialog.
void RunModalLoop(HWND window, CDialog& dialog, const KeyFilter& isDialogKey);

/// Makes the loop look at its dialog and its window.
void WakeModalLoop();

}  // namespace qutav
