#pragma once

#include <memory>
#include <string>

#include "framework/CPropertyPage.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/ListBox.h"
#include "framework/Picture.h"

namespace qutav {

/// The "Icons" page: one application icon per size. Every change goes into the descriptor in memory
/// at once.
class CIconPreviewDlg : public CPropertyPage {
 public:
  CIconPreviewDlg();

  /// Whether an icon was removed; one that was chosen does not count.
  bool IsIconChanged() const { return changed; }
  /// The pixels of the selected size; 0 without one, and for a size that the current runtime level
  /// does not know.
  int CurrentIconSize() const;
  void ShowSelectedIcon();
  /// Paints the loaded image into the preview; an image of another size too, as long as the path
  /// field is not empty.
  void DrawPreview();
  void BrowseIcon();
  void ClearIcon();

  void OnMouseMove(const Control* under) override { hover_.OnMouseMove(under); }

  bool initialised = false;
  bool changed = false;
  std::u16string rootFolder;  ///< ends in a backslash; empty without a movie's folder

 protected:
  bool OnInitDialog() override;

 private:
  std::string CurrentElement() const;
  std::u16string CurrentIconPath() const;
  std::u16string RelativePathOf(const std::u16string& file) const;

  ListBox* sizes_ = nullptr;
  Label* sizeLabel_ = nullptr;
  Edit* path_ = nullptr;
  Picture* preview_ = nullptr;
  HoverButtons hover_;
  std::shared_ptr<const Image> image_;
};

}  // namespace qutav
