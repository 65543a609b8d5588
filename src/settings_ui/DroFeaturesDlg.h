#pragma once

#include <string>
#include <vector>

#include "descriptor/DescriptorDocument.h"
#include "framework/CPropertyPage.h"
#include "framework/CheckList.h"

namespace qutav {

/// What the latest reading gave, in the order of the rows, and behind it the permissions that only
/// the descriptor had. A name is what the row shows and the permission's short form in one.
extern std::vector<std::u16string> FeatureNames;
extern std::vector<std::u16string> FeatureDescriptions;

/// The parser of the features file, with the file that it has read.
extern DescriptorDocument FeatureParser;

/// The page "Permissions" of the sheet's Android form: the permissions that the host's
/// configuration offers, and those of the descriptor's manifest additions, which are checked.
class CDroFeaturesDlg : public CPropertyPage {
 public:
  CDroFeaturesDlg();

  /// A new `FeatureParser`: 0 done, 1 Xerces could not be started, 2 the parser could not be made.
  int InitFeatureParser();
  /// Fills the two lists from the file in the host's language. False, with empty lists, when it
  /// cannot be read or is no list of features.
  bool ReadFeatures();
  /// Replaces the manifest additions of `CurrentDescriptor` by the checked rows, unless they are
  /// managed by hand: 1; 0, and nothing done, for a page that is not `initialised`.
  int SavePermissions();

  bool initialised = false;
  bool changed = false;

 protected:
  /// False when there is nothing to show.
  bool OnInitDialog() override;

 private:
  void OnListChanged();
  void OnManualClicked();
  void CheckPermissionsOf(const std::vector<std::u16string>& manifest);
  bool CheckRows(const std::u16string& permission);
  void AddRowFromDescriptor(const std::u16string& permission);
  void ShowManualMode(bool manual);

  CheckBox* manual_;
  CheckList* list_;
  Edit* description_;
};

}  // namespace qutav
