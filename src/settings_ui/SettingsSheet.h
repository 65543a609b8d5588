#pragma once

#include "framework/CPropertySheet.h"
#include "settings_ui/SettingsSheetScroll.h"

namespace qutav {

struct SettingsPages;

/// The place of the page with the signing material, in both forms.
constexpr int kDeploymentPage = 1;

/// The settings sheet in its Android or its iOS form. It owns no settings: it says which pages
/// there are, in what order they are stored, and what counts as a change.
class CSettingsPropSheet final : public CPropertySheet, public CSettingsPropSheetScroll {
 public:
  explicit CSettingsPropSheet(std::uint32_t titleId);

  /// Adds the pages of a form. They must outlive the sheet's window.
  void AddPages(SettingsPages& pages, bool ios);

  void OnOK() override { SheetOk(); }
  void OnHelp() override { SheetHelp(); }
  void OnVScroll(ScrollCode code, int thumbPosition) override;
  bool OnMouseWheel(int zDelta) override;

 protected:
  bool OnInitDialog() override;

 private:
  void MendHelpButton();
  void PutPublishInPlaceOfApply();

  /// Stores the pages that were visited, and ends the sheet unless one refused.
  void SheetOk();
  template <typename Page>
  void StoreDeployment(Page& page, bool& reported);
  bool StoreAndroidPages(bool& reported);
  bool StoreIosPages(bool& reported);
  bool StoreGeneralPage(bool& reported);

  /// Stores and publishes; the sheet stays open, whatever comes of it.
  void SheetPublish();
  void PublishAndroid();
  void PublishIos();
  template <typename Page>
  bool ValidateDeployment(Page& page);
  bool StoreGeneralPageOrDocument();
  bool HasSigningMaterial();
  void SheetHelp();

  SettingsPages* settingsPages_ = nullptr;
};

/// Shows the sheet on a page; false, with nothing shown, when the document's descriptor cannot be
/// loaded. Whether it was left by OK after a change stands in the settings afterwards. Edits of the
/// descriptor that were not saved go with the sheet, however it was left.
bool OpenSettingsSheet(WindowHandle owner, int startPage);

}  // namespace qutav
