#include "settings_ui/IpaSettingsDlg.h"

#include <algorithm>
#include <array>

#include "descriptor/DescriptorDocument.h"
#include "descriptor/SampleNamespace.h"
#include "packaging/DocumentDescriptor.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/GeneralFields.h"
#include "settings_ui/IncludedFiles.h"
#include "support/Paths.h"
#include "support/RuntimeVersion.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// Of a list with short rows, in dialog units.
constexpr int kChoiceWidth = 90;

enum AspectRatioRow { kPortraitRow, kLandscapeRow, kAutoRow };

// By their rows in the list.
constexpr std::array<const char16_t*, 4> kRenderModes = {u"auto", u"cpu", u"gpu", u"direct"};
constexpr int kCpuRow = 1;
constexpr int kDirectRow = 3;

// By their radio buttons.
enum Processor { kArmV7, kIntel, kArmV8 };
constexpr std::array<const char16_t*, 3> kProcessorTypes = {u"arm", u"x86", u"armv8"};

void FollowSampleNamespace() {
  std::string sample;
  if (ReadSampleNamespace(sample) != 0) return;
  std::string own;
  CurrentDescriptor.GetAttribute("application", "xmlns", own);
  if (own == sample) return;
  CurrentDescriptor.MigrateVersionElement();
  CurrentDescriptor.SetAttribute("application", "xmlns", sample);
}

// Icons of another target's sizes do not stay.
void EnterTargetPlatform() {
  const std::u16string old = SettingsGet(keys::kOldTargetPlatform);
  SettingsSet(keys::kOldTargetPlatform, u"Android");
  if (old != u"Nothing" && old != u"Android") RemoveApplicationIcons();
}

std::u16string StoredOutputFile() {
  const std::u16string stored = SettingsGet(keys::kTavDestination);
  if (stored.empty()) return SettingsGet(keys::kMovieBaseName) + u".apk";
  return ReplaceExtension(stored, u"apk");
}

bool IsTrue(const char* tag) {
  const auto text = DescriptorText(tag);
  return text && ToLowerAscii(*text) == u"true";
}

int AspectRatioOfDescriptor() {
  const auto text = DescriptorText("aspectRatio");
  if (!text) return kAutoRow;
  return *text == u"landscape" ? kLandscapeRow : kPortraitRow;
}

int RenderModeOfDescriptor() {
  const auto text = DescriptorText("renderMode");
  const auto found = std::find(kRenderModes.begin(), kRenderModes.end(), text.value_or(u""));
  return found == kRenderModes.end() ? kCpuRow : static_cast<int>(found - kRenderModes.begin());
}

void StoreWindowText(const char* tag, const std::u16string& value) {
  SetChildTextIfValid("initialWindow", tag, value);
}

void StoreAspectRatio(int row) {
  if (row == kPortraitRow) StoreWindowText("aspectRatio", u"portrait");
  if (row == kLandscapeRow) StoreWindowText("aspectRatio", u"landscape");
  if (row == kAutoRow) {
    CurrentDescriptor.RemoveGrandchild("application", "initialWindow", "aspectRatio");
  }
}

void StoreRenderMode(int row) {
  const bool known = row >= 0 && row < kDirectRow;
  StoreWindowText("renderMode", kRenderModes[static_cast<std::size_t>(known ? row : kDirectRow)]);
}

// How many rows of the list of included files are not the user's.
int FixedRowCount() { return kMovieRows + static_cast<int>(ExtensionRows().size()); }

}  // namespace

CIpaSettingsDlg::CIpaSettingsDlg()
    : CPropertyPage(u"CIpaSettingsDlg", u"General", texts::kMobileTitle) {
  SetLayout(layout::Form(layout::Joined({AddNames(), AddWindow(), AddProcessors(), AddFiles()})));
}

layout::FormLines CIpaSettingsDlg::AddNames() {
  using namespace layout;
  outputFile_ = &Add<Edit>(u"Output file:", texts::kMobileOutputFile);
  auto& browse = AddImageButton(u"Browse output file", texts::kMobileBrowse, ButtonImage::kBrowse,
                                &CIpaSettingsDlg::BrowseOutput);
  appName_ = &Add<Edit>(u"App name:", texts::kMobileAppName);
  auto& prefix = Add<Label>(u"tav.", texts::kMobileIdPrefix);
  appId_ = &Add<Edit>(u"App ID:", texts::kMobileAppId);
  auto& example = Add<Label>(u"Example: com.yourdomain.appname", texts::kMobileIdExample);
  version_ = &Add<Edit>(u"Version:", texts::kMobileVersion);
  versionLabel_ = &Add<Edit>(u"Version label:", texts::kMobileVersionLabel);
  return {Line(*outputFile_, Row({*outputFile_, browse})),
          Line(*appName_),
          Line(*appId_, Row({prefix, *appId_})),
          Indented(example),
          Line(*version_),
          Line(*versionLabel_)};
}

layout::FormLines CIpaSettingsDlg::AddWindow() {
  using namespace layout;
  aspectRatio_ = &Add<ComboBox>(u"Aspect ratio:", texts::kMobileAspectRatio);
  aspectRatio_->style = ComboStyle::kDropList;
  fullScreen_ = &Add<CheckBox>(u"Full screen", texts::kMobileFullScreen);
  autoOrientation_ = &Add<CheckBox>(u"Auto orientation", texts::kMobileAutoOrientation);
  renderMode_ = &Add<ComboBox>(u"Render mode:", texts::kMobileRenderMode);
  renderMode_->style = ComboStyle::kDropList;
  return {Line(*aspectRatio_, Fixed(*aspectRatio_, kChoiceWidth)),
          Indented(Row({*fullScreen_, *autoOrientation_}, kUnrelated)),
          Line(*renderMode_, Fixed(*renderMode_, kChoiceWidth))};
}

layout::FormLines CIpaSettingsDlg::AddProcessors() {
  using namespace layout;
  auto& heading = Add<Label>(u"Processor:", texts::kMobileProcessor);
  return {Line(heading, Column({AddProcessor(u" ARMv7 (32 bit)", texts::kMobileArmV7),
                                AddProcessor(u" Intel x86 (32 bit)", texts::kMobileIntel),
                                AddProcessor(u" ARMv8 (64 bit)", texts::kMobileArmV8)}))};
}

layout::FormLines CIpaSettingsDlg::AddFiles() {
  using namespace layout;
  includedFiles_ = &Add<ListBox>(u"Included files:", texts::kMobileIncludedFiles);
  includedFiles_->onSelectionChange = [this] { OnIncludedFileSelected(); };
  auto& addFile = AddImageButton(u"Add file", texts::kMobileAddFile, ButtonImage::kAddFile,
                                 &CIpaSettingsDlg::AddFile);
  delete_ = &AddImageButton(u"Delete", texts::kMobileDelete, ButtonImage::kDelete,
                            &CIpaSettingsDlg::Delete);
  auto& addFolder = AddImageButton(u"Add folder", texts::kMobileAddFolder, ButtonImage::kAddFolder,
                                   &CIpaSettingsDlg::AddFolder);
  return {Line(*includedFiles_,
               Row({List(*includedFiles_, 6, 150), Column({addFile, *delete_, addFolder})}))};
}

CIpaSettingsDlg::~CIpaSettingsDlg() { CurrentDescriptor.Close(); }

RadioButton& CIpaSettingsDlg::AddProcessor(const char16_t* label, std::uint32_t captionId) {
  auto& button = Add<RadioButton>(label, captionId);
  const auto index = static_cast<std::int32_t>(processors_.Buttons().size());
  button.onClick = [this, index] {
    processor = index;
    changed = true;
  };
  processors_.Add(button);
  return button;
}

CStretchBitmapButton& CIpaSettingsDlg::AddImageButton(const char16_t* label,
                                                      std::uint32_t captionId, ButtonImage image,
                                                      void (CIpaSettingsDlg::*handler)()) {
  auto& button = Add<CStretchBitmapButton>(label, captionId);
  PrepareImageButton(button, image, hover_, [this, handler] { (this->*handler)(); });
  return button;
}

bool CIpaSettingsDlg::OnInitDialog() {
  CPropertyPage::OnInitDialog();
  if (!CurrentDescriptor.IsParserReady()) CurrentDescriptor.InitParser();
  FillLists();
  LoadFromDescriptor();
  initialised = true;
  return true;
}

void CIpaSettingsDlg::FillLists() {
  for (const std::uint32_t row : {messages::kRenderModeAuto, messages::kRenderModeCpu,
                                  messages::kRenderModeGpu, messages::kRenderModeDirect}) {
    renderMode_->AddString(Message(row));
  }
  renderMode_->SetCurSel(kCpuRow);
  for (const std::uint32_t row :
       {messages::kPortrait, messages::kLandscape, messages::kAspectRatioAuto}) {
    aspectRatio_->AddString(Message(row));
  }
  aspectRatio_->SetCurSel(kPortraitRow);
}

int CIpaSettingsDlg::LoadFromDescriptor() {
  descriptorPath = DocumentDescriptorPath();
  FollowSampleNamespace();
  EnterTargetPlatform();
  SelectProcessorFromSettings();
  outputFile_->text = StoredOutputFile();
  LoadNames();
  LoadWindow();
  FillIncludedFiles(*includedFiles_);
  processors_.Select(processor);
  return 0;
}

void CIpaSettingsDlg::SelectProcessorFromSettings() {
  const bool allowsIntel = RuntimeIsAtLeast(u"TAV14.0");
  const bool allowsArmV8 = RuntimeIsAtLeast(u"TAV33.0");
  processors_.At(kIntel).enabled = allowsIntel;
  processors_.At(kArmV8).enabled = allowsArmV8;

  processor = kArmV7;
  if (allowsIntel && SettingsEquals(keys::kProcessorType, u"x86")) processor = kIntel;
  if (allowsArmV8 && SettingsEquals(keys::kProcessorType, u"armv8")) processor = kArmV8;
  // A choice that this level does not allow must not reach the packaging tool either.
  if (processor == kArmV7) SettingsSet(keys::kProcessorType, u"arm");
}

void CIpaSettingsDlg::LoadNames() {
  LoadLocalisableField(*appName_, "name");
  LoadField(*version_, "versionNumber");
  LoadField(*versionLabel_, "versionLabel");
  appId_->text = DescriptorText("id").value_or(SettingsGet(keys::kMovieBaseName));
}

void CIpaSettingsDlg::LoadWindow() {
  fullScreen_->checked = IsTrue("fullScreen");
  autoOrientation_->checked = IsTrue("autoOrients");
  aspectRatio_->SetCurSel(AspectRatioOfDescriptor());
  renderMode_->SetCurSel(RenderModeOfDescriptor());
}

int CIpaSettingsDlg::StoreToDescriptor() {
  StoreWindow();
  StoreNames();
  StoreOutputFile();
  SettingsSet(keys::kProcessorType, kProcessorTypes.at(static_cast<std::size_t>(processor)));
  if (!AcceptApplicationId(appId_->text)) return 1;
  CurrentDescriptor.SetText("id", appId_->text);
  SyncIncludedFiles();
  CurrentDescriptor.Save(descriptorPath);
  return 0;
}

void CIpaSettingsDlg::StoreWindow() {
  StoreAspectRatio(aspectRatio_->GetCurSel());
  StoreRenderMode(renderMode_->GetCurSel());
  StoreWindowText("fullScreen", fullScreen_->checked ? u"true" : u"false");
  StoreWindowText("autoOrients", autoOrientation_->checked ? u"true" : u"false");
}

void CIpaSettingsDlg::StoreNames() {
  if (!appName_->text.empty() && !IsLocalised("name")) {
    CurrentDescriptor.SetText("filename", appName_->text);
    CurrentDescriptor.SetText("name", appName_->text);
  }
  if (!version_->text.empty()) CurrentDescriptor.SetText("versionNumber", version_->text);
  CurrentDescriptor.SetText("versionLabel", versionLabel_->text);
}

void CIpaSettingsDlg::StoreOutputFile() {
  std::u16string path = OutputFileOf(*outputFile_);
  if (path.empty()) return;
  if (!path.ends_with(u".apk")) path += u".apk";
  if (StoreSetting(keys::kTavDestination, path)) changed = true;
}

// Without user rows the count keeps its old value; its items are gone, and that is what readers
// look at.
void CIpaSettingsDlg::SyncIncludedFiles() {
  ClearIncludedItems();
  const int fixedRows = FixedRowCount();
  const int items = includedFiles_->GetCount() - fixedRows;
  if (items <= 0) return;
  for (int i = 0; i < items; ++i) StoreIncludedItem(i, includedFiles_->GetRow(fixedRows + i));
  SettingsSet(keys::kIncludedCount, ToDecimal(items));
}

void CIpaSettingsDlg::BrowseOutput() {
  BrowseOutputFile(*outputFile_, u"apk", messages::kAndroidAppFile);
}

void CIpaSettingsDlg::AddFile() {
  if (AddIncludedFile(*includedFiles_, MovieFolder())) changed = true;
}

void CIpaSettingsDlg::AddFolder() {
  if (AddIncludedFolder(*includedFiles_)) changed = true;
}

void CIpaSettingsDlg::Delete() {
  if (DeleteIncludedRow(*includedFiles_, FixedRowCount())) changed = true;
}

void CIpaSettingsDlg::OnIncludedFileSelected() {
  const int selected = includedFiles_->GetCurSel();
  if (selected >= 0) delete_->enabled = selected >= FixedRowCount();
}

}  // namespace qutav
