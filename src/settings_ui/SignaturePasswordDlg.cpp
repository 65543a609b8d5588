#include "settings_ui/SignaturePasswordDlg.h"

#include "settings_ui/DialogTexts.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

CSignaturePasswordDlg::CSignaturePasswordDlg(WindowHandle parent)
    : CDialog(u"CSignaturePasswordDlg", texts::kPasswordTitle, parent),
      password_(&Add<Edit>(u"Password:", texts::kPasswordLabel)),
      remember_(&Add<CheckBox>(u"Remember password", texts::kPasswordRemember)) {
  password_->style = EditStyle::kPassword;
  auto& ok = Add<Button>(u"OK", texts::kPasswordOk);
  ok.isDefault = true;
  ok.onClick = [this] { OnOK(); };
  Add<Button>(u"Cancel", texts::kPasswordCancel).onClick = [this] { OnCancel(); };
}

void CSignaturePasswordDlg::OnOK() {
  SettingsSet(keys::kCertificatePassword, password_->text.c_str());
  SettingsSet(keys::kRememberPassword, remember_->checked ? u"true" : u"false");
  CDialog::OnOK();
}

}  // namespace qutav
