#include "settings_ui/TimestampRetryDlg.h"

#include "settings_ui/DialogTexts.h"

namespace qutav {

CTimestampRetryDlg::CTimestampRetryDlg(WindowHandle parent)
    : CDialog(u"CTimestampRetryDlg", texts::kTimestampTitle, parent) {
  Add<Label>(
      u"There was an error connecting to the timestamp server. You may not have a connection "
      u"to the network, or the server itself may have a problem.",
      texts::kTimestampError);
  Add<Label>(
      u"If you choose to disable timestamping, the TAV application will fail to install when "
      u"the digital certificate expires.",
      texts::kTimestampConsequence);
  Add<Button>(u"Disable Timestamping", texts::kTimestampDisable).onClick = [this] {
    EndDialog(kDisableTimestamping);
  };
  auto& retry = Add<Button>(u"Retry", texts::kTimestampRetry);
  retry.isDefault = true;
  retry.onClick = [this] { EndDialog(kRetry); };
  Add<Button>(u"Cancel", texts::kTimestampCancel).onClick = [this] { OnCancel(); };
}

}  // namespace qutav
