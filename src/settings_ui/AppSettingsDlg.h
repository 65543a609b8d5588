#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "framework/CPropertyPage.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/ComboBox.h"
#include "framework/ListBox.h"
#include "framework/layout/Parts.h"

namespace qutav {

/// The page "General" for a desktop application. Neither form of the sheet shows it. Its destructor
/// throws away what `CurrentDescriptor` holds.
class CAppSettingsDlg : public CPropertyPage {
 public:
  CAppSettingsDlg();
  ~CAppSettingsDlg() override;

  /// Fills the page from `CurrentDescriptor` and the settings. Always 0.
  int LoadFromDescriptor();
  /// Stores the page and saves the descriptor; 0. A refused application id has been shown and gives
  /// 1, with nothing stored.
  int StoreToDescriptor();

  /// Stores the page; it stays when that is refused.
  void OnOK() override;
  void OnMouseMove(const Control* under) override { hover_.OnMouseMove(under); }

  bool initialised = false;
  bool changed = false;  ///< whether there is something that the sheet must report
  std::u16string descriptorPath;

 protected:
  bool OnInitDialog() override;

 private:
  CStretchBitmapButton& AddImageButton(const char16_t* label, std::uint32_t captionId,
                                       ButtonImage image, void (CAppSettingsDlg::*handler)());
  layout::FormLines AddNames();
  layout::FormLines AddDescription();
  layout::FormLines AddProfiles();
  layout::FormLines AddFiles();
  void FillLists();

  void LoadNames();
  void LoadDescription();
  void LoadProfiles();

  void StoreNames();
  void StoreDescription();
  void StoreOutput();
  void StoreWindowStyle();
  void StoreInstaller();
  void StoreProfiles();
  void SyncIncludedFiles();

  void BrowseOutput();
  void AddFile();
  void AddFolder();
  void Delete();
  void OnIncludedFileSelected();

  HoverButtons hover_;
  Edit* outputFile_ = nullptr;
  CheckBox* installer_ = nullptr;
  Edit* fileName_ = nullptr;
  Edit* appName_ = nullptr;
  Edit* version_ = nullptr;
  Edit* appId_ = nullptr;
  Edit* description_ = nullptr;
  Edit* copyright_ = nullptr;
  ComboBox* windowStyle_ = nullptr;
  std::array<CheckBox*, 4> profiles_{};
  ListBox* includedFiles_ = nullptr;
  CStretchBitmapButton* delete_ = nullptr;
};

}  // namespace qutav
