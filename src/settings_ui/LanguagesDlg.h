#pragma once

#include "framework/CPropertyPage.h"
#include "framework/CheckList.h"

namespace qutav {

/// The page "Languages" of the sheet: the languages that the application supports, as the
/// descriptor's `supportedLanguages` lists their codes.
class CLanguagesDlg : public CPropertyPage {
 public:
  CLanguagesDlg();

  /// Adds the rows and checks those whose codes `CurrentDescriptor` lists.
  void FillLanguages();
  /// Lists the codes of the checked rows in `CurrentDescriptor`, in the order of the rows; without
  /// any the element goes. Only for a page that is `initialised`: one that was never shown has no
  /// checked row.
  void SaveLanguages();

  bool initialised = false;

 protected:
  bool OnInitDialog() override;

 private:
  CheckList* list_;
};

}  // namespace qutav
