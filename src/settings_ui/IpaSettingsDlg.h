#pragma once

#include <cstdint>
#include <string>

#include "framework/CPropertyPage.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/ComboBox.h"
#include "framework/ListBox.h"
#include "framework/layout/Parts.h"

namespace qutav {

/// The page "General" of both forms of the sheet. It edits what an author of a mobile application
/// needs most, brings an old descriptor forward when it loads, and writes the descriptor's file
/// when it stores. Its destructor throws away what `CurrentDescriptor` holds.
class CIpaSettingsDlg : public CPropertyPage {
 public:
  CIpaSettingsDlg();
  ~CIpaSettingsDlg() override;

  /// Fills the page from `CurrentDescriptor` and the settings. Always 0.
  int LoadFromDescriptor();
  /// Stores the page and saves the descriptor; 0. A refused application id has been shown and gives
  /// 1: what stands before it on the page is then in the DOM and the settings, and nothing is
  /// saved.
  int StoreToDescriptor();

  void OnMouseMove(const Control* under) override { hover_.OnMouseMove(under); }

  bool initialised = false;
  bool changed = false;  ///< whether there is something that the sheet must report
  std::u16string descriptorPath;
  std::int32_t processor = 0;  ///< index of the processor's radio button

 protected:
  bool OnInitDialog() override;

 private:
  layout::FormLines AddNames();
  layout::FormLines AddWindow();
  layout::FormLines AddProcessors();
  layout::FormLines AddFiles();
  RadioButton& AddProcessor(const char16_t* label, std::uint32_t captionId);
  CStretchBitmapButton& AddImageButton(const char16_t* label, std::uint32_t captionId,
                                       ButtonImage image, void (CIpaSettingsDlg::*handler)());
  void FillLists();

  void LoadNames();
  void LoadWindow();
  void SelectProcessorFromSettings();

  void StoreWindow();
  void StoreNames();
  void StoreOutputFile();
  void SyncIncludedFiles();

  void BrowseOutput();
  void AddFile();
  void AddFolder();
  void Delete();
  void OnIncludedFileSelected();

  HoverButtons hover_;
  RadioGroup processors_;
  Edit* outputFile_ = nullptr;
  Edit* appName_ = nullptr;
  Edit* appId_ = nullptr;
  Edit* version_ = nullptr;
  Edit* versionLabel_ = nullptr;
  ComboBox* aspectRatio_ = nullptr;
  CheckBox* fullScreen_ = nullptr;
  CheckBox* autoOrientation_ = nullptr;
  ComboBox* renderMode_ = nullptr;
  ListBox* includedFiles_ = nullptr;
  CStretchBitmapButton* delete_ = nullptr;
};

}  // namespace qutav
