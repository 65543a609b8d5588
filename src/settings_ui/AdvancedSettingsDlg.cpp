#include "settings_ui/AdvancedSettingsDlg.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "descriptor/DescriptorDocument.h"
#include "framework/layout/Parts.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/FileTypeDlg.h"
#include "settings_ui/GeneralFields.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav {
namespace {

bool RunFileTypeDialog(FileTypeRecord& type) {
  return CFileTypeDlg(TheServices().frontEnd->FocusWindow(), type).DoModal() == kIdOk;
}

layout::FormLine NumberLine(const Edit& edit) { return layout::Line(edit, layout::Number(edit)); }

// --- Rows of the list ---------------------------------------------------------------------------

std::u16string Placeholder() { return u"<" + Message(messages::kNone) + u">"; }

std::u16string RowOf(const FileTypeRecord& type) {
  return FromLocalCodePage(type.name) + u"(" + FromLocalCodePage(type.extension) + u")";
}

// What stands before the first parenthesis; a row without one has no name.
std::u16string NameOfRow(const std::u16string& row) {
  const std::size_t parenthesis = row.find(u'(');
  return parenthesis == row.npos ? std::u16string() : row.substr(0, parenthesis);
}

std::u16string ExtensionOfRow(const std::u16string& row) {
  std::u16string extension = row.substr(NameOfRow(row).size());
  std::erase_if(extension, [](char16_t unit) { return unit == u'(' || unit == u')'; });
  return extension;
}

// --- Fields of the descriptor -------------------------------------------------------------------

bool AllDigits(std::u16string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

std::optional<std::u16string> TrimmedText(const char* tag) {
  std::string text;
  if (CurrentDescriptor.GetTextNarrow(tag, text) != 0) return {};
  return Trimmed(FromLocalCodePage(text));
}

void FillDigits(Edit& edit, const std::u16string& text) {
  if (AllDigits(text)) edit.text = text;
}

void FillNumber(Edit& edit, const char* tag) {
  if (const auto text = TrimmedText(tag)) FillDigits(edit, *text);
}

// Two numbers with a blank between them.
void FillSize(Edit& width, Edit& height, const char* tag) {
  const auto text = TrimmedText(tag);
  const std::size_t blank = text ? text->find(u' ') : std::u16string::npos;
  if (blank == std::u16string::npos) return;
  FillDigits(width, Trimmed(text->substr(0, blank)));
  FillDigits(height, Trimmed(text->substr(blank)));
}

bool Says(const char* tag, std::u16string_view value) {
  const auto text = TrimmedText(tag);
  return text && ToLowerAscii(*text) == value;
}

}  // namespace

CAdvancedSettingsDlg::CAdvancedSettingsDlg()
    : CPropertyPage(u"CAdvancedSettingsDlg", u"Advanced", texts::kAdvancedTitle) {
  SetLayout(layout::Column({AddFileTypeControls(), AddWindowControls(), AddOtherControls()},
                           layout::kUnrelated));
}

Layout CAdvancedSettingsDlg::AddFileTypeControls() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"Associated file types", texts::kAdvancedFileTypesGroup);
  types_ = &Add<ListBox>(u"File types:", texts::kAdvancedFileTypes);
  auto& add = AddImageButton(u"Add file type", texts::kAdvancedAdd, ButtonImage::kAdd,
                             &CAdvancedSettingsDlg::AddFileType);
  delete_ = &AddImageButton(u"Delete file type", texts::kAdvancedDelete, ButtonImage::kDelete,
                            &CAdvancedSettingsDlg::DeleteFileType);
  edit_ = &AddImageButton(u"Edit file type", texts::kAdvancedEdit, ButtonImage::kEdit,
                          &CAdvancedSettingsDlg::EditFileType);
  return Group(
      group, Form({Line(*types_, Row({List(*types_, 5, 120), Column({add, *delete_, *edit_})}))}));
}

Layout CAdvancedSettingsDlg::AddWindowControls() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"Initial window settings", texts::kAdvancedWindowGroup);
  width_ = &AddNumber(u"Width:", texts::kAdvancedWidth);
  height_ = &AddNumber(u"Height:", texts::kAdvancedHeight);
  x_ = &AddNumber(u"X:", texts::kAdvancedX);
  y_ = &AddNumber(u"Y:", texts::kAdvancedY);
  maximumWidth_ = &AddNumber(u"Maximum width:", texts::kAdvancedMaximumWidth);
  maximumHeight_ = &AddNumber(u"Maximum height:", texts::kAdvancedMaximumHeight);
  minimumWidth_ = &AddNumber(u"Minimum width:", texts::kAdvancedMinimumWidth);
  minimumHeight_ = &AddNumber(u"Minimum height:", texts::kAdvancedMinimumHeight);
  maximizable_ = &AddSwitch(u"Maximizable", texts::kAdvancedMaximizable);
  minimizable_ = &AddSwitch(u"Minimizable", texts::kAdvancedMinimizable);
  resizable_ = &AddSwitch(u"Resizable", texts::kAdvancedResizable);
  resizable_->onClick = [this] { EnableSizeLimits(resizable_->checked); };
  visible_ = &AddSwitch(u"Visible", texts::kAdvancedVisible);
  return Group(
      group,
      Column({Columns({Form({NumberLine(*width_), NumberLine(*x_), NumberLine(*maximumWidth_),
                             NumberLine(*minimumWidth_)}),
                       Form({NumberLine(*height_), NumberLine(*y_), NumberLine(*maximumHeight_),
                             NumberLine(*minimumHeight_)})}),
              Columns({Column({*maximizable_, *resizable_}), Column({*minimizable_, *visible_})})},
             kUnrelated));
}

Layout CAdvancedSettingsDlg::AddOtherControls() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"Other settings", texts::kAdvancedOtherGroup);
  installFolder_ = &Add<Edit>(u"Install folder:", texts::kAdvancedInstallFolder);
  programMenuFolder_ = &Add<Edit>(u"Program menu folder:", texts::kAdvancedProgramMenuFolder);
  customUpdate_ = &Add<CheckBox>(u"Use custom UI for updates", texts::kAdvancedCustomUpdate);
  return Group(group,
               Column({Form({Line(*installFolder_), Line(*programMenuFolder_)}), *customUpdate_}));
}

Edit& CAdvancedSettingsDlg::AddNumber(const char16_t* label, std::uint32_t captionId) {
  auto& edit = Add<Edit>(label, captionId);
  edit.style = EditStyle::kDigits;
  return edit;
}

CheckBox& CAdvancedSettingsDlg::AddSwitch(const char16_t* label, std::uint32_t captionId) {
  auto& box = Add<CheckBox>(label, captionId);
  box.checked = true;
  return box;
}

CStretchBitmapButton& CAdvancedSettingsDlg::AddImageButton(
    const char16_t* label, std::uint32_t captionId, ButtonImage image,
    void (CAdvancedSettingsDlg::*handler)()) {
  auto& button = Add<CStretchBitmapButton>(label, captionId);
  PrepareImageButton(button, image, hover_, [this, handler] { (this->*handler)(); });
  return button;
}

bool CAdvancedSettingsDlg::OnInitDialog() {
  CPropertyPage::OnInitDialog();
  LoadFileTypes();
  LoadFields();
  initialised = true;
  return true;
}

void CAdvancedSettingsDlg::LoadFileTypes() {
  std::u16string list;
  if (CurrentDescriptor.GetFileTypeList(list) != 0) {
    AddPlaceholder();
    return;
  }
  // Names go through narrow text, and come back changed where the local code page lacks something.
  list = FromLocalCodePage(ToLocalCodePage(list));
  std::size_t begin = 0;
  while (begin < list.size()) {
    const std::size_t end = std::min(list.find(u';', begin), list.size());
    if (end > begin) LoadFileType(list.substr(begin, end - begin));
    begin = end + 1;
  }
}

// A row whose type is not found by its name stays without a record.
void CAdvancedSettingsDlg::LoadFileType(const std::u16string& row) {
  types_->AddString(row);
  const std::u16string name = NameOfRow(row);
  FileTypeRecord type;
  if (CurrentDescriptor.GetFileType(name, type) != 0) return;
  type.storedName = type.name;
  fileTypes[name] = type;
}

void CAdvancedSettingsDlg::LoadFields() {
  LoadField(*installFolder_, "installFolder");
  LoadField(*programMenuFolder_, "programMenuFolder");
  FillNumber(*width_, "width");
  FillNumber(*height_, "height");
  FillNumber(*x_, "x");
  FillNumber(*y_, "y");
  FillSize(*minimumWidth_, *minimumHeight_, "minSize");
  FillSize(*maximumWidth_, *maximumHeight_, "maxSize");
  maximizable_->checked = !Says("maximizable", u"false");
  minimizable_->checked = !Says("minimizable", u"false");
  resizable_->checked = !Says("resizable", u"false");
  EnableSizeLimits(resizable_->checked);
  visible_->checked = !Says("visible", u"false");
  if (Says("customUpdateUI", u"true")) customUpdate_->checked = true;
}

void CAdvancedSettingsDlg::EnableSizeLimits(bool enabled) {
  for (Edit* limit : {maximumWidth_, maximumHeight_, minimumWidth_, minimumHeight_}) {
    limit->enabled = enabled;
  }
}

void CAdvancedSettingsDlg::AddFileType() {
  FileTypeRecord type;
  if (!RunFileTypeDialog(type)) return;
  if (type.name.empty() || type.extension.empty()) return;
  type.storedName = type.name;
  fileTypes[FromLocalCodePage(type.name)] = type;
  RemovePlaceholder();
  const std::u16string row = RowOf(type);
  if (types_->FindStringExact(row) < 0) types_->AddString(row);
  if (types_->GetCount() > 0) EnableRowButtons(true);
}

void CAdvancedSettingsDlg::EditFileType() {
  const int selected = types_->GetCurSel();
  if (selected < 0) return;
  const std::u16string row = types_->GetRow(selected);
  const std::u16string name = NameOfRow(row);
  FileTypeRecord type = fileTypes[name];
  if (type.name.empty()) return;
  if (!RunFileTypeDialog(type)) return;
  const std::u16string newName = FromLocalCodePage(type.name);
  if (newName != name || FromLocalCodePage(type.extension) != ExtensionOfRow(row)) {
    types_->DeleteString(selected);
    fileTypes.erase(name);
    types_->AddString(RowOf(type));
  }
  fileTypes[newName] = type;
}

// The record stays as the mark of the deletion.
void CAdvancedSettingsDlg::DeleteFileType() {
  const int selected = types_->GetCurSel();
  if (selected >= 0 && types_->GetRow(selected) != Placeholder()) {
    fileTypes[NameOfRow(types_->GetRow(selected))].live = false;
    types_->DeleteString(selected);
  }
  if (types_->GetCount() == 0) AddPlaceholder();
}

void CAdvancedSettingsDlg::AddPlaceholder() {
  types_->AddString(Placeholder());
  EnableRowButtons(false);
}

void CAdvancedSettingsDlg::RemovePlaceholder() {
  const int placeholder = types_->FindStringExact(Placeholder());
  if (placeholder >= 0) types_->DeleteString(placeholder);
}

void CAdvancedSettingsDlg::EnableRowButtons(bool enabled) {
  delete_->enabled = enabled;
  edit_->enabled = enabled;
}

}  // namespace qutav
