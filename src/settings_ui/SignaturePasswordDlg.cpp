#include "settings_ui/SignaturePasswordDlg.h"

#include "settings_ui/DialogTexts.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

CSignaturePasswordDlg::CSignaturePasswordDlg(WindowHandle parent)
    : CDialog(u"CSignaturePasswordDlg", texts::kPasswordTitle, parent),
      password_(&AddControl(ControlKind::kPassword, u"Password:", texts::kPasswordLabel)),
      remember_(
          &AddControl(ControlKind::kCheckBox, u"Remember password", texts::kPasswordRemember)) {
  AddControl(ControlKind::kButton, u"OK", texts::kPasswordOk).onClick = [this] { OnOK(); };
  AddControl(ControlKind::kButton, u"Cancel", texts::kPasswordCancel).onClick = [this] {
    OnCancel();
  };
}

void CSignaturePasswordDlg::OnOK() {
  SettingsSet(keys::kCertificatePassword, password_->text.c_str());
  SettingsSet(keys::kRememberPassword, remember_->checked ? u"true" : u"false");
  CDialog::OnOK();
}

}  // namespace qutav
