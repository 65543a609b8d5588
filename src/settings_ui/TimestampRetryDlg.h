#pragma once

#include "framework/CDialog.h"

namespace qutav {

/// Results of `CTimestampRetryDlg`; Cancel gives `kIdCancel`.
inline constexpr int kRetry = 1;
inline constexpr int kDisableTimestamping = 12;

/// Offers a way out when the timestamp server cannot be reached.
class CTimestampRetryDlg : public CDialog {
 public:
  explicit CTimestampRetryDlg(WindowHandle parent);
};

}  // namespace qutav
