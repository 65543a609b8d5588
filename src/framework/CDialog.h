// The model of a modal dialog: controls, timers and handlers. It
// never touches a window; a front end shows it and calls it back.
#pragma once

#include <chrono>
#include <cstdint>
#include <list>
#include <map>
#include <string>

#include "framework/Control.h"
#include "platform/FrontEnd.h"

namespace qutav {

class CDialog {
 public:
  using TimerId = std::uint32_t;

  /// `className` names the dialog to scripts; `titleId` is the catalogue's id, 0 for no title.
  /// Texts are those of the interface language now: once a dialog runs, a worker beside it may be
  /// using what looking them up touches.
  CDialog(std::u16string className, std::uint32_t titleId, WindowHandle parent);
  virtual ~CDialog() = default;
  CDialog(const CDialog&) = delete;
  CDialog& operator=(const CDialog&) = delete;

  /// Shows the dialog and returns what `EndDialog` was given.
  int DoModal();
  void EndDialog(int result);
  bool HasEnded() const { return ended_; }
  int Result() const { return result_; }

  /// A front end calls these in this order: `Create`, then events, then `Destroy`.
  void Create();
  void Destroy();
  virtual void OnTimer(TimerId) {}
  virtual void OnOK() { EndDialog(kIdOk); }
  virtual void OnCancel() { EndDialog(kIdCancel); }

  const std::u16string& ClassName() const { return className_; }
  const std::u16string& Title() const { return title_; }
  WindowHandle Parent() const { return parent_; }
  std::list<Control>& Controls() { return controls_; }
  const std::list<Control>& Controls() const { return controls_; }
  const std::map<TimerId, std::chrono::milliseconds>& Timers() const { return timers_; }

  /// Where the dialog moved itself; meaningful once `IsPlaced`.
  int Left() const { return left_; }
  int Top() const { return top_; }
  bool IsPlaced() const { return placed_; }

 protected:
  /// The platform's initialisation, run when the window has been created.
  virtual void OnInitDialog() {}
  virtual void OnCreate() {}
  virtual void OnDestroy() {}

  Control& AddControl(ControlKind kind, std::u16string label, std::uint32_t textId);
  void SetTimer(TimerId id, std::chrono::milliseconds period) { timers_[id] = period; }
  void KillTimer(TimerId id) { timers_.erase(id); }
  void MoveTo(int left, int top);

 private:
  std::u16string className_;
  WindowHandle parent_;
  std::u16string title_;
  std::list<Control> controls_;
  std::map<TimerId, std::chrono::milliseconds> timers_;
  int left_ = 0;
  int top_ = 0;
  bool placed_ = false;
  bool ended_ = false;
  int result_ = 0;
};

}  // namespace qutav
