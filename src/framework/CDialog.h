// The model of a modal dialog: controls, timers and handlers. It
// never touches a window; a front end shows it and calls it back.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "framework/Control.h"
#include "framework/Layout.h"
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
  virtual void Destroy();
  bool IsCreated() const { return created_; }
  /// Carries out one event. What it throws, and nobody below has caught, is shown as a warning; the
  /// dialog goes on.
  static void Dispatch(const std::function<void()>& event);
  virtual void OnTimer(TimerId) {}
  virtual void OnOK() { EndDialog(kIdOk); }
  virtual void OnCancel() { EndDialog(kIdCancel); }
  /// A mouse move over a control, or over none, before it goes where it belongs
  /// (`PreTranslateMessage`).
  virtual void OnMouseMove(const Control* /*under*/) {}

  const std::u16string& ClassName() const { return className_; }
  const std::u16string& Title() const { return title_; }
  WindowHandle Parent() const { return parent_; }
  /// In tab order.
  const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
  const std::map<TimerId, std::chrono::milliseconds>& Timers() const { return timers_; }

  /// Where its controls stand. A sheet has none.
  const Layout& GetLayout() const { return layout_; }

  /// Where the dialog moved itself; meaningful once `IsPlaced`.
  int Left() const { return left_; }
  int Top() const { return top_; }
  bool IsPlaced() const { return placed_; }

 protected:
  /// The platform's initialisation, run when the window has been created. True when the platform
  /// may give the focus to the first control.
  virtual bool OnInitDialog() { return true; }
  virtual void OnCreate() {}
  virtual void OnDestroy() {}

  /// Appends a control. Its caption, of that id, stands in it or, for a field, beside it.
  template <typename Kind>
  Kind& Add(const std::u16string& label, std::uint32_t captionId = 0) {
    return Insert<Kind>(controls_.size(), label, captionId);
  }
  /// The same, behind another control in tab order.
  template <typename Kind>
  Kind& AddAfter(const Control& other, const std::u16string& label, std::uint32_t captionId = 0) {
    return Insert<Kind>(IndexOf(other) + 1, label, captionId);
  }
  void Remove(const Control& control);
  void SetLayout(Layout layout) { layout_ = std::move(layout); }

  void SetTimer(TimerId id, std::chrono::milliseconds period) { timers_[id] = period; }
  void KillTimer(TimerId id) { timers_.erase(id); }
  void MoveTo(int left, int top);
  /// Brings what handlers have changed to the screen at once (`UpdateWindow`).
  void Repaint();

 private:
  template <typename Kind>
  Kind& Insert(std::size_t index, const std::u16string& label, std::uint32_t captionId) {
    auto control = std::make_unique<Kind>();
    Kind& added = *control;
    GiveTexts(added, label, captionId);
    controls_.insert(controls_.begin() + static_cast<std::ptrdiff_t>(index), std::move(control));
    return added;
  }
  static void GiveTexts(Control& control, const std::u16string& label, std::uint32_t captionId);
  std::size_t IndexOf(const Control& control) const;

  std::u16string className_;
  WindowHandle parent_;
  std::u16string title_;
  std::vector<std::unique_ptr<Control>> controls_;
  Layout layout_;
  std::map<TimerId, std::chrono::milliseconds> timers_;
  int left_ = 0;
  int top_ = 0;
  bool placed_ = false;
  bool created_ = false;
  bool ended_ = false;
  int result_ = 0;
};

}  // namespace qutav
