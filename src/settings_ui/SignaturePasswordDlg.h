#pragma once

#include "framework/CDialog.h"

namespace qutav {

/// Asks for the certificate's password. OK leaves it, an empty one too, and the remember mark in
/// the settings; Cancel leaves nothing. Fields start empty whatever is stored.
class CSignaturePasswordDlg : public CDialog {
 public:
  explicit CSignaturePasswordDlg(WindowHandle parent);
  void OnOK() override;

 private:
  Edit* password_;
  CheckBox* remember_;
};

}  // namespace qutav
