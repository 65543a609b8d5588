#include "settings_ui/FileTypeDlg.h"

#include <algorithm>
#include <utility>

#include "framework/Fonts.h"
#include "framework/MessageBoxes.h"
#include "framework/layout/Parts.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/IconPicking.h"
#include "support/HelpLinks.h"
#include "support/NameRules.h"
#include "support/Paths.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr char16_t kFileTypeIconsFolder[] = u"FileTypeIconsForTAVPublish";

std::uint32_t TextId(std::uint32_t first, std::size_t index) {
  return first + static_cast<std::uint32_t>(index);
}

}  // namespace

// An icon is painted at its own size into a preview that leaves a frame around it.
struct CFileTypeDlg::Kind {
  const char16_t* size;
  int side;
  int previewWidth;
  int previewHeight;
  int offset;
  std::u16string FileTypeRecord::*field;
};

constexpr std::array<CFileTypeDlg::Kind, 4> CFileTypeDlg::kKinds = {{
    {u"128x128", 128, 130, 130, 0, &FileTypeRecord::image128x128},
    {u"48x48", 48, 52, 52, 1, &FileTypeRecord::image48x48},
    {u"32x32", 32, 37, 36, 1, &FileTypeRecord::image32x32},
    {u"16x16", 16, 22, 21, 1, &FileTypeRecord::image16x16},
}};

CFileTypeDlg::CFileTypeDlg(WindowHandle parent, FileTypeRecord& record)
    : CDialog(u"CFileTypeDlg", texts::kFileTypeTitle, parent), record_(record) {
  for (std::size_t i = 0; i < icons_.size(); ++i) icons_[i].kind = &kKinds[i];
  SetLayout(layout::Column({AddFields(), AddIcons(), AddButtons()}, layout::kUnrelated));
}

Layout CFileTypeDlg::AddFields() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"File type settings", texts::kFileTypeSettingsGroup);
  name_ = &Add<Edit>(u"Name:", texts::kFileTypeName);
  extension_ = &Add<Edit>(u"Extension:", texts::kFileTypeExtension);
  description_ = &Add<Edit>(u"Description:", texts::kFileTypeDescription);
  contentType_ = &Add<Edit>(u"Content type:", texts::kFileTypeContentType);
  return Group(group,
               Form({Line(*name_), Line(*extension_), Line(*description_), Line(*contentType_)}));
}

Layout CFileTypeDlg::AddIcons() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"File type icon settings", texts::kFileTypeIconsGroup);
  return Group(group, Column({AddPreviews(), AddIconRows()}, kUnrelated));
}

Layout CFileTypeDlg::AddPreviews() {
  std::vector<const Picture*> previews;
  for (std::size_t i = 0; i < icons_.size(); ++i) {
    Icon& icon = icons_[i];
    icon.preview = &Add<Picture>(icon.kind->size, TextId(texts::kFileTypeFirstPreview, i));
    icon.preview->width = icon.kind->previewWidth;
    icon.preview->height = icon.kind->previewHeight;
    icon.preview->onPaint = [&icon] { PaintPreview(icon); };
    previews.push_back(icon.preview);
  }
  return layout::Gallery(previews);
}

Layout CFileTypeDlg::AddIconRows() {
  using namespace layout;
  FormLines lines;
  for (std::size_t i = 0; i < icons_.size(); ++i) {
    Icon& icon = icons_[i];
    const std::u16string size = icon.kind->size;
    icon.path = &Add<Edit>(size + u":", TextId(texts::kFileTypeFirstPath, i));
    auto& browse = Add<CStretchBitmapButton>(u"Browse " + size + u" icon",
                                             TextId(texts::kFileTypeFirstBrowse, i));
    PrepareImageButton(browse, ButtonImage::kBrowse, hover_, [this, &icon] { PickIconFile(icon); });
    auto& remove = Add<CStretchBitmapButton>(u"Remove " + size + u" icon",
                                             TextId(texts::kFileTypeFirstRemove, i));
    PrepareImageButton(remove, ButtonImage::kDelete, hover_, [&icon] { RemoveIcon(icon); });
    lines.push_back(Line(*icon.path, Row({*icon.path, browse, remove})));
  }
  return Form(std::move(lines));
}

Layout CFileTypeDlg::AddButtons() {
  auto& help = Add<Button>(u"Help", texts::kFileTypeHelp);
  help.onClick = [] { OpenHelpLink(kAndroidHelp); };
  auto& ok = Add<Button>(u"OK", texts::kFileTypeOk);
  ok.isDefault = true;
  ok.onClick = [this] { OnOK(); };
  auto& cancel = Add<Button>(u"Cancel", texts::kFileTypeCancel);
  cancel.onClick = [this] { OnCancel(); };
  return layout::Buttons({help, ok, cancel});
}

bool CFileTypeDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  rootFolder_ = MovieFolder();
  if (IsOlderWindows()) {
    description_->fontFace = kEastAsianFace;
    contentType_->fontFace = kEastAsianFace;
  }
  FillFromRecord();
  return true;
}

void CFileTypeDlg::FillFromRecord() {
  if (record_.name.empty() && record_.extension.empty()) return;
  name_->text = FromLocalCodePage(record_.name);
  extension_->text = FromLocalCodePage(record_.extension);
  description_->text = record_.description;
  contentType_->text = record_.contentType;
  for (Icon& icon : icons_) FillIcon(icon);
}

// The path of an icon whose file has gone is dropped.
void CFileTypeDlg::FillIcon(Icon& icon) {
  const std::u16string& path = record_.*icon.kind->field;
  if (path.empty()) return;
  const std::u16string file = rootFolder_ + WithBackslashes(path);
  if (!TheServices().files->Exists(file)) return;
  icon.image = TheServices().images->Load(file);
  PaintPreview(icon);
  icon.path->text = path;
}

void CFileTypeDlg::PaintPreview(const Icon& icon) {
  if (icon.image == nullptr) return;
  const int begin = icon.kind->offset;
  const int end = begin + icon.kind->side;
  icon.preview->Paint(icon.image, {begin, begin, end, end});
}

void CFileTypeDlg::PickIconFile(Icon& icon) {
  auto file = ChooseIconFile();
  if (!file) return;
  if (!IsBelowRoot(*file, rootFolder_)) {
    if (!AskToCopyIcon()) return;
    if (TheServices().files->Exists(*file))
      file = CopyIcon(*file, rootFolder_, kFileTypeIconsFolder);
  }
  icon.path->text = MakeRelative(*file, rootFolder_);
  icon.image = TheServices().images->Load(*file);
  icon.preview->Clear(kWhite);
  PaintPreview(icon);
}

void CFileTypeDlg::RemoveIcon(Icon& icon) {
  icon.path->text.clear();
  icon.preview->Clear(kWhite);
  icon.image.reset();
}

void CFileTypeDlg::OnOK() {
  if (CheckFields() && StoreFileType()) CDialog::OnOK();
}

bool CFileTypeDlg::CheckFields() const {
  if (name_->text.empty() || extension_->text.empty() || contentType_->text.empty()) {
    ShowWarning(Message(messages::kFileTypeIncomplete));
    return false;
  }
  if (!IsValidFileTypeName(name_->text)) {
    ShowWarning(Message(messages::kInvalidFileTypeName) + Message(messages::kFileTypeNameRules));
    return false;
  }
  if (!IsValidFileExtension(extension_->text)) {
    ShowWarning(Message(messages::kInvalidFileExtension) + Message(messages::kFileExtensionRules));
    return false;
  }
  return true;
}

// The smallest icon comes first, so that its failure is met first.
bool CFileTypeDlg::StoreFileType() {
  StoreTexts();
  return std::all_of(icons_.rbegin(), icons_.rend(),
                     [this](const Icon& icon) { return StoreIcon(icon); });
}

void CFileTypeDlg::StoreTexts() {
  record_.name = ToLocalCodePage(name_->text);
  record_.extension = ToLocalCodePage(extension_->text);
  record_.description = description_->text;
  record_.contentType = contentType_->text;
}

bool CFileTypeDlg::StoreIcon(const Icon& icon) {
  std::u16string& field = record_.*icon.kind->field;
  const std::u16string& path = icon.path->text;
  if (path.empty()) {
    field.clear();
    return true;
  }
  if (!CheckIconExists(path)) return false;
  field = NormaliseIconPath(path);
  return !field.empty();
}

bool CFileTypeDlg::CheckIconExists(const std::u16string& path) {
  const std::u16string file = WithForwardSlashes(SettingsGet(keys::kMovieFolder) + path);
  if (TheServices().files->Exists(file)) return true;
  ShowWarning(Message(messages::kIconCannotBeOpened) + u"\n" + file);
  return false;
}

// The path with forward slashes; empty, and told, when no file is there.
std::u16string CFileTypeDlg::NormaliseIconPath(const std::u16string& path) const {
  const std::u16string file = WithBackslashes(path);
  Files& files = *TheServices().files;
  if (files.Exists(file) || files.Exists(rootFolder_ + file)) return WithForwardSlashes(path);
  ShowWarning(Message(messages::kIconMissing));
  return {};
}

}  // namespace qutav
