// What a modal run of a dialog or a sheet tells somebody who stands by.
#pragma once

namespace qutav {

class ModalEvents {
 public:
  virtual ~ModalEvents() = default;
  /// The dialog has been created and stands before the user.
  virtual void OnShown() {}
  /// One of its timers has fired, and has been dealt with.
  virtual void OnTick() {}
  /// A page of the sheet has come to the front.
  virtual void OnPage(int /*index*/) {}
};

}  // namespace qutav
