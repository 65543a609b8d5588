// What makes a window modal.
#pragma once

#include <functional>

#include "framework/CDialog.h"
#include "platform/windows/System.h"

namespace qutav {

/// Takes input away from a window's owner for as long as it lives. An owner that had no input keeps
/// having none.
class DisabledOwner {
 public:
  explicit DisabledOwner(HWND owner);
  ~DisabledOwner();
  DisabledOwner(const DisabledOwner&) = delete;
  DisabledOwner& operator=(const DisabledOwner&) = delete;

 private:
  HWND owner_;
  bool disabled_;
};

/// The top-level window to which a dialog over `parent` belongs; without a parent, the active one.
HWND OwnerFor(WindowHandle parent);

/// Deals with the keys of a dialog (`IsDialogMessageW`); true when the message needs nothing more.
using KeyFilter = std::function<bool(MSG&)>;

/// Runs the thread's messages until the dialog has ended. A thread that is told to end, and a
/// window that somebody destroys, cancel the dialog.
void RunModalLoop(HWND window, CDialog& dialog, const KeyFilter& isDialogKey);

/// Makes the loop look at its dialog and its window.
void WakeModalLoop();

}  // namespace qutav
