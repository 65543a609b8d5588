#pragma once

#include "framework/CDialog.h"
#include "support/ProcessRunner.h"

namespace qutav {

/// Stands over the packaging worker: ends itself, with 0, at the first tick of its one-second timer
/// that finds the done flag set, and asks the work to stop when Cancel is pressed. A new dialog
/// clears `PublishCancelled`.
class CProgressDlg : public CDialog {
 public:
  explicit CProgressDlg(WindowHandle parent);

  /// The byte that the worker sets when it is done. It must outlive the dialog's window.
  void SetDoneFlag(PolledByte* flag) { doneFlag_ = flag; }
  bool IsCancelled() const { return cancelled_; }

  void OnTimer(TimerId id) override;
  void OnCancel() override;

 protected:
  void OnCreate() override;
  bool OnInitDialog() override;
  void OnDestroy() override;
  /// After this no tick touches the caller's byte.
  virtual void ClearDoneFlag() { doneFlag_ = nullptr; }

 private:
  void Centre();

  bool cancelled_ = false;
  PolledByte* doneFlag_ = nullptr;
  ProgressBar* bar_ = nullptr;
};

}  // namespace qutav
