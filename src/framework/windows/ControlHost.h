// A window's controls as a model has them.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "framework/CDialog.h"
#include "framework/windows/CaptionMarks.h"
#include "framework/windows/ControlBinder.h"

namespace qutav {

/// Keeps a window for each of a dialog's controls among the children of a window. `Update` makes
/// the first ones.
class ControlHost {
 public:
  /// `dpi`: for which the controls are made, in pixels per inch.
  ControlHost(HWND window, CDialog& dialog, unsigned dpi);
  virtual ~ControlHost();
  ControlHost(const ControlHost&) = delete;
  ControlHost& operator=(const ControlHost&) = delete;

  HWND Window() const { return window_; }
  CDialog& Model() const { return dialog_; }
  const std::vector<std::unique_ptr<ControlBinder>>& Binders() const { return binders_; }
  /// Null for a control of somebody else.
  ControlBinder* BinderOf(const Control& control) const;

  /// The size in which nothing is cut.
  Size NaturalSize() const;
  void Arrange(const Size& size);
  /// Another font for another resolution; `Arrange` must follow.
  void SetDpi(unsigned dpi);
  unsigned Dpi() const { return dpi_; }

  /// Brings everything that the model has to the screen: controls that came or went, their state,
  /// timers.
  void Update();
  /// The model's end makes the message loop look up.
  void WakeWhenEnded() const;

  /// Deals with what controls and timers send to the window; the dialog procedure's answer, or
  /// nothing for any other message.
  std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  /// A message of the thread, before it goes where it belongs.
  void PreTranslate(const MSG& message);

 protected:
  /// The window of a control that has none yet.
  virtual std::unique_ptr<ControlBinder> Bind(Control& control, const WindowPlace& place);
  HFONT Font() const { return font_->Handle(); }

 private:
  void RemoveGone();
  void AddNew();
  void OnCommand(int id, int notification);
  ControlBinder* BinderOf(HWND window) const;
  ControlBinder* BinderOf(int id) const;
  void UpdateTimers();

  HWND window_;
  CDialog& dialog_;
  unsigned dpi_;
  std::unique_ptr<DialogFont> font_;
  CaptionMarks marks_;
  int nextId_;
  std::vector<std::unique_ptr<ControlBinder>> binders_;
  std::vector<CDialog::TimerId> timers_;
};

}  // namespace qutav
