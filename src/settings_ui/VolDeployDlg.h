#pragma once

#include <cstdint>

#include "framework/CPropertyPage.h"
#include "framework/ComboBox.h"

namespace qutav {

/// The "Deployment" page of the iOS form: certificate, password, provisioning profile, App ID and
/// the type of deployment.
class CVolDeployDlg : public CPropertyPage {
 public:
  CVolDeployDlg();

  /// Stores the fields; an empty one stays as it was stored. With `validate` an empty field, but
  /// for the App ID, gives 1 and a file that does not exist 2: a message is shown, the page loads
  /// itself anew and what follows is not stored. 0 when all is done.
  int SaveToSettings(bool validate);

  /// Rewrites the App ID so that the selected profile covers it. Throws `std::out_of_range` for a
  /// profile without a property list.
  void ApplyProvisioningProfile();

  bool initialised = false;
  bool changed = false;
  std::int32_t iosDeployType = 0;  ///< the index of the checked radio button

 protected:
  bool OnInitDialog() override;

 private:
  // A file with the list of those chosen lately, and where its choice is kept.
  struct FileField {
    const char16_t* key;
    const char16_t* lastChoice;
    const char16_t* recentFiles;
    const char16_t* filter;
    std::uint32_t emptyMessage;
    std::uint32_t missingMessage;
    ComboBox* combo = nullptr;
  };

  Layout AddSigningFields();
  Layout AddDeploymentTypes();
  void LoadDeployType();
  void LoadPassword();
  static void LoadFile(const FileField& field);
  void LoadApplicationId();

  void BrowseCertificate();
  void BrowseProfile();
  void ChooseDeployType(std::int32_t type);

  int StoreFile(const FileField& field, bool validate);
  void KeepFile(const FileField& field);
  int StorePassword(bool validate);
  void StoreApplicationId();
  int Refuse(std::uint32_t message, int result);

  FileField certificate_;
  FileField profile_;
  Edit* password_ = nullptr;
  CheckBox* remember_ = nullptr;
  Edit* applicationId_ = nullptr;
  RadioGroup deployTypes_;
};

}  // namespace qutav
