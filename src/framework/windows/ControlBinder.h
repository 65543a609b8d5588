// A control's window: brings the model's state to the screen and tells the model what the user
// does.
#pragma once

#include <functional>
#include <memory>

#include "framework/Control.h"
#include "framework/Layout.h"
#include "framework/windows/DialogFont.h"
#include "platform/windows/System.h"

// behind the system's own header
#include <commctrl.h>

namespace qutav {

/// Which window stands for a kind of control.
struct WindowKind {
  const wchar_t* className;
  DWORD style = 0;
  DWORD extendedStyle = 0;
  bool hasCaption = false;  ///< a label of its own shows the control's caption
};

/// Where a control's window stands among others.
struct WindowPlace {
  HWND parent;
  int id;
  unsigned dpi;
};

class ControlBinder {
 public:
  /// Destroys the windows, unless their parent has done so.
  virtual ~ControlBinder();
  ControlBinder(const ControlBinder&) = delete;
  ControlBinder& operator=(const ControlBinder&) = delete;

  /// Whether it is this control's, and not a former one's of the same address.
  bool Binds(const Control& control) const { return control.serial == serial_; }
  Control& Model() const { return control_; }
  HWND Window() const { return window_; }
  HWND CaptionWindow() const { return caption_; }
  /// False for a window that somebody else has created and put in its place.
  bool IsOurs() const { return owned_; }

  void SetFont(HFONT font, unsigned dpi);
  /// The caption, and the text of a control that is read rather than filled, as `text` has it: with
  /// the mark of its mnemonic. For as long as the text stays what it is now.
  void SetMnemonic(std::u16string text);
  void Place(const PlacedControl& placed);
  /// Brings the model's state to the window where the two differ.
  void Update();

  /// The messages of the control's window to its parent. What the model does then runs in
  /// `RunEvent`.
  virtual void OnCommand(int /*notification*/) {}
  virtual void OnNotify(const NMHDR& /*notification*/) {}
  virtual void OnDrawItem(const DRAWITEMSTRUCT& /*item*/) {}

 protected:
  ControlBinder(Control& control, const WindowPlace& place, const WindowKind& kind);
  /// Takes a window that somebody else has created, and leaves it to them.
  ControlBinder(Control& control, HWND window);

  virtual void Show() = 0;
  virtual void OnFont(HFONT /*font*/) {}
  virtual void OnPlaced() {}

  unsigned Dpi() const { return dpi_; }
  int Scaled(int pixelsAt96) const { return MulDiv(pixelsAt96, static_cast<int>(dpi_), 96); }
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(window_, message, wParam, lParam);
  }
  /// What a window is to show for a text of the model: with its mnemonic, ampersands doubled.
  std::u16string Shown(const std::u16string& text) const;
  /// True while the window is told the model's state; what it reports then is no news.
  bool IsUpdating() const { return updating_; }

 private:
  Control& control_;
  unsigned serial_;
  HWND caption_ = nullptr;
  HWND window_;
  unsigned dpi_;
  bool owned_ = true;
  bool updating_ = false;
  std::u16string plainText_;
  std::u16string mnemonicText_;
};

/// The binder of a control's kind, with its windows.
std::unique_ptr<ControlBinder> MakeBinder(Control& control, const WindowPlace& place);

/// The same for a button that the system has created.
std::unique_ptr<ControlBinder> AdoptButton(Button& button, HWND window);

/// Carries out an event on a model (`CDialog::Dispatch`), then brings all open windows up to date.
void RunEvent(const std::function<void()>& event);

}  // namespace qutav
