#include "settings_ui/SignaturePasswordDlg.h"

#include "framework/layout/Parts.h"
#include "settings_ui/DialogTexts.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

CSignaturePasswordDlg::CSignaturePasswordDlg(WindowHandle parent)
    : CDialog(u"CSignaturePasswordDlg", texts::kPasswordTitle, parent),
      password_(&Add<Edit>(u"Password:", texts::kPasswordLabel)),
      remember_(&Add<CheckBox>(u"Remember password", texts::kPasswordRemember)) {
  using namespace layout;
  password_->style = EditStyle::kPassword;
  auto& ok = Add<Button>(u"OK", texts::kPasswordOk);
  ok.isDefault = true;
  ok.onClick = [this] { OnOK(); };
  auto& cancel = Add<Button>(u"Cancel", texts::kPasswordCancel);
  cancel.onClick = [this] { OnCancel(); };
  SetLayout(Column({Form({Line(*password_, Field(*password_, 140)), Indented(*remember_)}),
                    Buttons({ok, cancel})},
                   kUnrelated));
}

void CSignaturePasswordDlg::OnOK() {
  SettingsSet(keys::kCertificatePassword, password_->text.c_str());
  SettingsSet(keys::kRememberPassword, remember_->checked ? u"true" : u"false");
  CDialog::OnOK();
}

}  // namespace qutav
