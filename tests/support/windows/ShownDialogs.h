// Models in real windows: the native front end, a host's window for an owner, and a user.
#pragma once

#include "ServicesTest.h"
#include "framework/windows/ControlBinder.h"
#include "framework/windows/NativeFrontEnd.h"
#include "windows/ModalUser.h"
#include "windows/OwnerWindow.h"

namespace qutav::test {

/// The native front end is in force, a host's window has the focus, and the mouse is out of the
/// way. A member of a fixture.
class NativeGround {
 public:
  NativeGround();

  HWND Owner() const { return owner_.Window(); }
  NativeFrontEnd& FrontEnd() { return frontEnd_; }
  /// The sheet that was shown last; null before the first one.
  CPropertySheet* ShownSheet() const { return frontEnd_.sheet; }
  /// What was to be opened in the browser.
  const std::vector<std::u16string>& Links() const { return frontEnd_.links; }

 private:
  class WatchedFrontEnd : public NativeFrontEnd {
   public:
    using NativeFrontEnd::RunModal;
    int RunModal(CPropertySheet& shown) override {
      sheet = &shown;
      return NativeFrontEnd::RunModal(shown);
    }
    void OpenLink(const std::u16string& url) override { links.push_back(url); }

    CPropertySheet* sheet = nullptr;
    std::vector<std::u16string> links;
  };

  WatchedFrontEnd frontEnd_;
  OwnerWindow owner_;
};

/// Tests of dialogs that need no document.
class ShownDialogTest : public ServicesTest {
 protected:
  NativeGround ground;
};

/// The window that shows a control or a dialog; only while it is shown.
HWND WindowOf(const Control& control);
HWND WindowOf(const CDialog& dialog);
/// The label beside a field; null without one.
HWND CaptionOf(const Control& control);

/// Shows a dialog to a user who takes these steps, the last of which ends it; its result.
int Use(CDialog& dialog, const ModalUser::Steps& steps);
/// The same for a user who closes it after the steps.
int LookAt(CDialog& dialog, ModalUser::Steps steps);
int LookAt(CDialog& dialog, const std::function<void()>& look);

/// Reads one message box of the product and presses OK.
class BoxReader {
 public:
  std::u16string text;

 private:
  ModalUser user_{WindowTitled(u"Zenvoka Kestrow"), [this](HWND box) {
                    text = TextOf(GetDlgItem(box, 0xFFFF));
                    Press(box, IDOK);
                  }};
};

/// The steps of a user who fills fields, from the one with the focus on, and ends on the one behind
/// them.
ModalUser::Steps Filling(const std::vector<std::u16string>& texts);

/// Closes a window as its close box does.
void Close(HWND window);
/// Clicks a button's window.
void Click(const Control& control);

/// A window's place on the screen.
RECT PlaceOf(HWND window);
/// A window's style bits.
DWORD StyleOf(HWND window);

}  // namespace qutav::test
