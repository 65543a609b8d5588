#pragma once

#include <map>
#include <string>

#include "descriptor/FileTypeRecord.h"
#include "framework/CPropertyPage.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/ListBox.h"

namespace qutav {

/// The page "Advanced" of a desktop application: file types, initial window, install folders. It
/// reads the descriptor and writes nothing; what is done to file types goes with the page.
class CAdvancedSettingsDlg : public CPropertyPage {
 public:
  CAdvancedSettingsDlg();

  void OnMouseMove(const Control* under) override { hover_.OnMouseMove(under); }

  /// By name; deleted types stay in it, marked.
  std::map<std::u16string, FileTypeRecord> fileTypes;
  bool initialised = false;

 protected:
  bool OnInitDialog() override;

 private:
  Layout AddFileTypeControls();
  Layout AddWindowControls();
  Layout AddOtherControls();
  Edit& AddNumber(const char16_t* label, std::uint32_t captionId);
  CheckBox& AddSwitch(const char16_t* label, std::uint32_t captionId);
  CStretchBitmapButton& AddImageButton(const char16_t* label, std::uint32_t captionId,
                                       ButtonImage image, void (CAdvancedSettingsDlg::*handler)());

  void LoadFileTypes();
  void LoadFileType(const std::u16string& row);
  void LoadFields();
  void EnableSizeLimits(bool enabled);

  void AddFileType();
  void EditFileType();
  void DeleteFileType();
  void AddPlaceholder();
  void RemovePlaceholder();
  void EnableRowButtons(bool enabled);

  ListBox* types_ = nullptr;
  CStretchBitmapButton* delete_ = nullptr;
  CStretchBitmapButton* edit_ = nullptr;
  HoverButtons hover_;
  Edit* width_ = nullptr;
  Edit* height_ = nullptr;
  Edit* x_ = nullptr;
  Edit* y_ = nullptr;
  Edit* maximumWidth_ = nullptr;
  Edit* maximumHeight_ = nullptr;
  Edit* minimumWidth_ = nullptr;
  Edit* minimumHeight_ = nullptr;
  CheckBox* maximizable_ = nullptr;
  CheckBox* minimizable_ = nullptr;
  CheckBox* resizable_ = nullptr;
  CheckBox* visible_ = nullptr;
  Edit* installFolder_ = nullptr;
  Edit* programMenuFolder_ = nullptr;
  CheckBox* customUpdate_ = nullptr;
};

}  // namespace qutav
