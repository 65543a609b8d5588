#include "settings_ui/TimestampRetryDlg.h"

#include "framework/layout/Parts.h"
#include "settings_ui/DialogTexts.h"

namespace qutav {
namespace {

// Dialog units.
constexpr int kQuestionWidth = 240;

}  // namespace

CTimestampRetryDlg::CTimestampRetryDlg(WindowHandle parent)
    : CDialog(u"CTimestampRetryDlg", texts::kTimestampTitle, parent) {
  using namespace layout;
  auto& error = Add<Label>(
      u"There was an error connecting to the timestamp server. You may not have a connection "
      u"to the network, or the server itself may have a problem.",
      texts::kTimestampError);
  auto& consequence = Add<Label>(
      u"If you choose to disable timestamping, the TAV application will fail to install when "
      u"the digital certificate expires.",
      texts::kTimestampConsequence);
  auto& disable = Add<Button>(u"Disable Timestamping", texts::kTimestampDisable);
  disable.onClick = [this] { EndDialog(kDisableTimestamping); };
  auto& retry = Add<Button>(u"Retry", texts::kTimestampRetry);
  retry.isDefault = true;
  retry.onClick = [this] { EndDialog(kRetry); };
  auto& cancel = Add<Button>(u"Cancel", texts::kTimestampCancel);
  cancel.onClick = [this] { OnCancel(); };
  SetLayout(Column({Wrapped(error, kQuestionWidth), Wrapped(consequence, kQuestionWidth),
                    Row({disable, Buttons({retry, cancel})})},
                   kUnrelated));
}

}  // namespace qutav
