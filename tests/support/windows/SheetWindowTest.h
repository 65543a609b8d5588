// The ground of tests of the whole settings sheet in its window.
#pragma once

#include "SheetTest.h"
#include "windows/ShownDialogs.h"

namespace qutav::test {

class SheetWindowTest : public SheetTest {
 protected:
  /// Shows the sheet to a user who takes these steps, the last of which ends it.
  void UseSheet(const ModalUser::Steps& steps, int startPage = 0) {
    const ModalUser user(AnyDialog(), steps);
    EXPECT_TRUE(OpenSettingsSheet(nullptr, startPage));
  }
  /// The same for a user who closes it after the steps.
  void LookAtSheet(ModalUser::Steps steps, int startPage = 0) {
    steps.push_back(Close);
    UseSheet(steps, startPage);
  }
  void LookAtSheet(const std::function<void()>& look, int startPage = 0) {
    LookAtSheet(ModalUser::Steps{[&](HWND) { look(); }}, startPage);
  }

  CPropertySheet& Sheet() { return *ground.ShownSheet(); }
  HWND Window() { return WindowOf(Sheet()); }
  HWND Button(int commandId) { return GetDlgItem(Window(), commandId); }
  HWND Tabs() { return PropSheet_GetTabControl(Window()); }
  CPropertyPage& Page(int index) { return *Sheet().Pages()[static_cast<std::size_t>(index)]; }
  CPropertyPage& Turn(const std::u16string& title) { return TurnTo(Sheet(), title); }

  NativeGround ground;
};

}  // namespace qutav::test
