#pragma once

#include <array>
#include <memory>
#include <string>

#include "descriptor/FileTypeRecord.h"
#include "framework/CDialog.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/Picture.h"

namespace qutav {

/// Edits one file association of the application. Only OK writes to the record; when it stops at an
/// icon that is missing, what went before is in the record already.
class CFileTypeDlg : public CDialog {
 public:
  /// The record stays the caller's. One without name and extension is a new one.
  CFileTypeDlg(WindowHandle parent, FileTypeRecord& record);

  void OnOK() override;
  void OnMouseMove(const Control* under) override { hover_.OnMouseMove(under); }

 protected:
  bool OnInitDialog() override;

 private:
  struct Kind;
  struct Icon {
    const Kind* kind = nullptr;
    Picture* preview = nullptr;
    Edit* path = nullptr;
    std::shared_ptr<const Image> image;
  };
  static const std::array<Kind, 4> kKinds;

  Layout AddFields();
  Layout AddIcons();
  Layout AddPreviews();
  Layout AddIconRows();
  Layout AddButtons();

  void FillFromRecord();
  void FillIcon(Icon& icon);
  static void PaintPreview(const Icon& icon);
  void PickIconFile(Icon& icon);
  static void RemoveIcon(Icon& icon);

  bool CheckFields() const;
  bool StoreFileType();
  void StoreTexts();
  bool StoreIcon(const Icon& icon);
  static bool CheckIconExists(const std::u16string& path);
  std::u16string NormaliseIconPath(const std::u16string& path) const;

  FileTypeRecord& record_;
  std::u16string rootFolder_;
  Edit* name_ = nullptr;
  Edit* extension_ = nullptr;
  Edit* description_ = nullptr;
  Edit* contentType_ = nullptr;
  std::array<Icon, 4> icons_;
  HoverButtons hover_;
};

}  // namespace qutav
