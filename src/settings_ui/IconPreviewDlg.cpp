#include "settings_ui/IconPreviewDlg.h"

#include <algorithm>
#include <iterator>

#include "descriptor/DescriptorDocument.h"
#include "framework/MessageBoxes.h"
#include "framework/layout/Parts.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/IconPicking.h"
#include "support/Paths.h"
#include "support/RuntimeVersion.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav {
namespace {

struct IconSize {
  const char16_t* text;
  int pixels;
  const char16_t* sinceLevel;  // null: always there
};

constexpr IconSize kIconSizes[] = {
    {u" 36x36", 36, nullptr},   {u" 48x48", 48, nullptr},       {u" 72x72", 72, nullptr},
    {u" 96x96", 96, u"TAV3.7"}, {u" 144x144", 144, u"TAV20.0"}, {u" 192x192", 192, u"TAV20.0"},
};

constexpr int kPreviewSide = 192;
constexpr char16_t kAppIconsFolder[] = u"AppIconsForPublish";

bool IsOffered(const IconSize& size) {
  return size.sinceLevel == nullptr || RuntimeIsAtLeast(size.sinceLevel);
}

std::u16string TwiceWithX(int side) { return ToDecimal(side) + u"x" + ToDecimal(side); }

bool IsSquareOf(const std::shared_ptr<const Image>& image, int side) {
  return image != nullptr && image->width == side && image->height == side;
}

}  // namespace

CIconPreviewDlg::CIconPreviewDlg()
    : CPropertyPage(u"CIconPreviewDlg", u"Icons", texts::kIconsTitle) {
  using namespace layout;
  sizes_ = &Add<ListBox>(u"Icon sizes:", texts::kIconsSizes);
  sizes_->onSelectionChange = [this] { ShowSelectedIcon(); };
  sizeLabel_ = &Add<Label>(u"36x36", texts::kIconsFirstSize);
  path_ = &Add<Edit>(u"Icon path:", texts::kIconsPath);
  path_->style = EditStyle::kReadOnly;
  auto& browse = Add<CStretchBitmapButton>(u"Browse icon", texts::kIconsBrowse);
  PrepareImageButton(browse, ButtonImage::kBrowse, hover_, [this] { BrowseIcon(); });
  auto& remove = Add<CStretchBitmapButton>(u"Remove icon", texts::kIconsRemove);
  PrepareImageButton(remove, ButtonImage::kDelete, hover_, [this] { ClearIcon(); });
  preview_ = &Add<Picture>(u"Preview:", texts::kIconsPreview);
  preview_->width = kPreviewSide;
  preview_->height = kPreviewSide;
  preview_->onPaint = [this] { DrawPreview(); };
  SetLayout(Row({Above(*sizes_, List(*sizes_, 6, 80)),
                 Column({*sizeLabel_, Form({Line(*path_, Row({*path_, browse, remove}))}),
                         Above(*preview_, *preview_)},
                        kUnrelated)},
                kUnrelated));
}

bool CIconPreviewDlg::OnInitDialog() {
  CPropertyPage::OnInitDialog();
  for (const IconSize& size : kIconSizes) {
    if (IsOffered(size)) sizes_->AddString(Message(messages::kIcon) + size.text);
  }
  rootFolder = MovieFolder();
  sizes_->SetCurSel(0);
  ShowSelectedIcon();
  initialised = true;
  return true;
}

int CIconPreviewDlg::CurrentIconSize() const {
  const int row = sizes_->GetCurSel();
  if (row < 0 || row >= std::ssize(kIconSizes) || !IsOffered(kIconSizes[row])) return 0;
  return kIconSizes[row].pixels;
}

std::string CIconPreviewDlg::CurrentElement() const {
  return ToLocalCodePage(u"image" + TwiceWithX(CurrentIconSize()));
}

std::u16string CIconPreviewDlg::CurrentIconPath() const {
  std::u16string path;
  CurrentDescriptor.GetApplicationIcon(CurrentElement().c_str(), path);
  return ReplaceAll(path, u"%20", u" ");
}

// The image of another size stays loaded when this one has none.
void CIconPreviewDlg::ShowSelectedIcon() {
  sizeLabel_->text = TwiceWithX(CurrentIconSize());
  preview_->Clear(kLightGrey);
  path_->text = CurrentIconPath();
  const std::u16string file = rootFolder + path_->text;
  if (path_->text.empty() || !TheServices().files->Exists(file)) return;
  image_ = TheServices().images->Load(file);
  DrawPreview();
}

void CIconPreviewDlg::DrawPreview() {
  if (image_ == nullptr) return;
  const int side = std::min({image_->width, image_->height, preview_->width, preview_->height});
  const int left = (preview_->width - side) / 2;
  const int top = (preview_->height - side) / 2;
  preview_->Paint(image_, {left, top, left + side, top + side});
  // An icon that was removed must not come back.
  if (path_->text.empty()) preview_->Clear(kLightGrey);
}

// Not a change that the sheet reports.
void CIconPreviewDlg::BrowseIcon() {
  const auto file = ChooseIconFile();
  if (!file) return;
  if (!IsSquareOf(TheServices().images->Load(*file), CurrentIconSize())) {
    ShowWarning(Message(messages::kIconDimensions));
    return;
  }
  const std::u16string path = RelativePathOf(*file);
  if (path.empty()) return;
  std::u16string stored;
  EncodeSpacesForUri(stored, WithForwardSlashes(path));
  CurrentDescriptor.SetGrandchildText("application", "icon", CurrentElement().c_str(), stored);
  ShowSelectedIcon();
}

std::u16string CIconPreviewDlg::RelativePathOf(const std::u16string& file) const {
  if (IsBelowRoot(file, rootFolder)) return MakeRelative(file, rootFolder);
  if (!AskToCopyIcon()) return {};
  return MakeRelative(CopyIcon(file, rootFolder, kAppIconsFolder), rootFolder);
}

// A copied file stays in its folder.
void CIconPreviewDlg::ClearIcon() {
  CurrentDescriptor.RemoveGrandchild("application", "icon", CurrentElement().c_str());
  path_->text.clear();
  preview_->Clear(kLightGrey);
  changed = true;
}

}  // namespace qutav
