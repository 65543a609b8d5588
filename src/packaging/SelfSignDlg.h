#pragma once

#include <string>

#include "framework/CDialog.h"
#include "framework/ComboBox.h"
#include "framework/layout/Parts.h"

namespace qutav {

/// Makes a self-signed certificate with the packaging tool. OK closes it unless the tool tells
/// a failure; a file that is then in its place becomes the certificate of the settings. The
/// password is kept nowhere.
class CSelfSignDlg : public CDialog {
 public:
  explicit CSelfSignDlg(WindowHandle parent);
  void OnOK() override;

  /// Appends the tool's arguments. False at the first required field that is empty, with what came
  /// before it appended. Gives "Save as:" the ending ".p12" when it has none of a keystore.
  bool BuildCertificateArguments(std::u16string& arguments);

  /// Runs the tool, waits for it and tells what came of it. False for a failure that the tool
  /// tells; a run that could not be followed counts as success.
  bool RunCertificateTool(const std::u16string& arguments);

 protected:
  bool OnInitDialog() override;

 private:
  layout::FormLines AddFields();
  layout::FormLine AddType();
  layout::FormLine AddValidity();
  layout::FormLine AddDestination();
  Layout AddButtons();
  void BrowseDestination();
  std::u16string StartName() const;
  void AddKeystoreEnding();
  bool PasswordsMatch() const;
  bool MayWriteDestination() const;

  Edit* publisher_ = nullptr;
  Edit* unit_ = nullptr;
  Edit* organization_ = nullptr;
  ComboBox* country_ = nullptr;
  Edit* password_ = nullptr;
  Edit* confirmation_ = nullptr;
  ComboBox* type_ = nullptr;
  Edit* validity_ = nullptr;
  Edit* destination_ = nullptr;
};

}  // namespace qutav
