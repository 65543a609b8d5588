#include "settings_ui/AppSettingsDlg.h"

#include <algorithm>

#include "descriptor/DescriptorDocument.h"
#include "descriptor/SampleNamespace.h"
#include "framework/Fonts.h"
#include "packaging/DocumentDescriptor.h"
#include "packaging/PackagerCommand.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/GeneralFields.h"
#include "settings_ui/IncludedFiles.h"
#include "support/Paths.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// By their rows in the list.
struct WindowStyle {
  const char16_t* setting;
  const char16_t* systemChrome;
  const char16_t* transparent;
};
constexpr std::array<WindowStyle, 3> kWindowStyles = {{
    {u"standard", u"standard", u"false"},
    {u"opaque", u"none", u"false"},
    {u"transparent", u"none", u"true"},
}};
constexpr int kSystemChromeRow = 0;
constexpr int kOpaqueRow = 1;
constexpr int kTransparentRow = 2;

// By the order in which the descriptor names them; `box` is the index of the check box.
struct Profile {
  const char16_t* word;
  const char16_t* stored;
  std::size_t box;
};
constexpr std::array<Profile, 4> kProfiles = {{
    {u"desktop", u"desktop ", 0},
    {u"extendedDesktop", u"extendedDesktop ", 2},
    {u"mobileDevice", u"mobileDevice ", 1},
    {u"extendedMobileDevice", u"extendedMobileDevice", 3},
}};

void BringFirstNamespacesForward() {
  std::string sample;
  if (ReadSampleNamespace(sample) != 0) return;
  std::string own;
  CurrentDescriptor.GetAttribute("application", "xmlns", own);
  if (own != "1.0" && own != "1.1") return;
  CurrentDescriptor.SetAttribute("application", "xmlns", sample);
}

std::u16string UsableOutputFile() {
  const std::u16string baseName = SettingsGet(keys::kMovieBaseName);
  std::u16string path = SettingsGet(keys::kTavDestination);
  if (path.empty()) return WithBackslashes(baseName + u".apk");
  const bool hasFolder = path.find_first_of(u"/\\") != path.npos;
  if (hasFolder && !DestinationUsable(path)) path = baseName;
  if (ToLowerAscii(path).find(u".apk") == path.npos) path += u".apk";
  return WithBackslashes(path);
}

int WindowStyleOfSettings() {
  const std::u16string setting = SettingsGet(keys::kWindowType);
  if (setting == u"opaque") return kOpaqueRow;
  return setting == u"transparent" ? kTransparentRow : kSystemChromeRow;
}

int WindowStyleToShow() {
  const auto systemChrome = DescriptorText("systemChrome");
  const auto transparent = DescriptorText("transparent");
  if (!systemChrome || !transparent) return WindowStyleOfSettings();
  if (*systemChrome == u"none" && *transparent == u"false") return kOpaqueRow;
  if (*systemChrome == u"none" && *transparent == u"true") return kTransparentRow;
  return kSystemChromeRow;
}

void StoreTextOrClear(const char* tag, const std::u16string& text) {
  if (text.empty()) {
    CurrentDescriptor.ClearText(tag);
  } else {
    CurrentDescriptor.SetText(tag, text);
  }
}

// A carriage return would be written as a reference, and every store and load would add another.
std::u16string WithPlainLineBreaks(const std::u16string& text) {
  return ReplaceAll(text, u"\r\n", u"\n");
}

std::u16string WithEditLineBreaks(const std::u16string& text) {
  return ReplaceAll(WithPlainLineBreaks(text), u"\n", u"\r\n");
}

bool Holds(const std::vector<std::u16string>& rows, const std::u16string& row) {
  return std::find(rows.begin(), rows.end(), row) != rows.end();
}

}  // namespace

CAppSettingsDlg::CAppSettingsDlg()
    : CPropertyPage(u"CAppSettingsDlg", u"General", texts::kDesktopTitle) {
  SetLayout(
      layout::Form(layout::Joined({AddNames(), AddDescription(), AddProfiles(), AddFiles()})));
}

layout::FormLines CAppSettingsDlg::AddNames() {
  using namespace layout;
  outputFile_ = &Add<Edit>(u"Output file:", texts::kDesktopOutputFile);
  auto& browse = AddImageButton(u"Browse output file", texts::kDesktopBrowse, ButtonImage::kBrowse,
                                &CAppSettingsDlg::BrowseOutput);
  installer_ = &Add<CheckBox>(u"Windows installer (.exe)", texts::kDesktopInstaller);
  fileName_ = &Add<Edit>(u"File name:", texts::kDesktopFileName);
  appName_ = &Add<Edit>(u"App name:", texts::kDesktopAppName);
  version_ = &Add<Edit>(u"Version:", texts::kDesktopVersion);
  appId_ = &Add<Edit>(u"App ID:", texts::kDesktopAppId);
  auto& example = Add<Label>(u"Example: com.yourdomain.appname", texts::kDesktopIdExample);
  return {Line(*outputFile_, Row({*outputFile_, browse})),
          Indented(*installer_),
          Line(*fileName_),
          Line(*appName_),
          Line(*version_),
          Line(*appId_),
          Indented(example)};
}

layout::FormLines CAppSettingsDlg::AddDescription() {
  using namespace layout;
  description_ = &Add<Edit>(u"Description:", texts::kDesktopDescription);
  description_->style = EditStyle::kMultiLine;
  copyright_ = &Add<Edit>(u"Copyright:", texts::kDesktopCopyright);
  windowStyle_ = &Add<ComboBox>(u"Window style:", texts::kDesktopWindowStyle);
  windowStyle_->style = ComboStyle::kDropList;
  return {Line(*description_, Lines(*description_, 3)), Line(*copyright_), Line(*windowStyle_)};
}

layout::FormLines CAppSettingsDlg::AddProfiles() {
  using namespace layout;
  auto& heading = Add<Label>(u"Profiles:", texts::kDesktopProfiles);
  profiles_ = {&Add<CheckBox>(u"Desktop", texts::kDesktopProfileDesktop),
               &Add<CheckBox>(u"Mobile Device", texts::kDesktopProfileMobile),
               &Add<CheckBox>(u"Extended Desktop", texts::kDesktopProfileExtended),
               &Add<CheckBox>(u"Extended Mobile Device", texts::kDesktopProfileExtendedMobile)};
  return {Line(heading,
               Row({Column({*profiles_[0], *profiles_[2]}), Column({*profiles_[1], *profiles_[3]})},
                   kUnrelated))};
}

layout::FormLines CAppSettingsDlg::AddFiles() {
  using namespace layout;
  includedFiles_ = &Add<ListBox>(u"Included files", texts::kDesktopIncludedFiles);
  includedFiles_->onSelectionChange = [this] { OnIncludedFileSelected(); };
  auto& addFile = AddImageButton(u"Add file", texts::kDesktopAddFile, ButtonImage::kAddFile,
                                 &CAppSettingsDlg::AddFile);
  delete_ = &AddImageButton(u"Delete", texts::kDesktopDelete, ButtonImage::kDelete,
                            &CAppSettingsDlg::Delete);
  auto& addFolder = AddImageButton(u"Add folder", texts::kDesktopAddFolder, ButtonImage::kAddFolder,
                                   &CAppSettingsDlg::AddFolder);
  return {Line(*includedFiles_,
               Row({List(*includedFiles_, 5, 150), Column({addFile, *delete_, addFolder})}))};
}

CAppSettingsDlg::~CAppSettingsDlg() { CurrentDescriptor.Close(); }

CStretchBitmapButton& CAppSettingsDlg::AddImageButton(const char16_t* label,
                                                      std::uint32_t captionId, ButtonImage image,
                                                      void (CAppSettingsDlg::*handler)()) {
  auto& button = Add<CStretchBitmapButton>(label, captionId);
  PrepareImageButton(button, image, hover_, [this, handler] { (this->*handler)(); });
  return button;
}

bool CAppSettingsDlg::OnInitDialog() {
  CPropertyPage::OnInitDialog();
  if (!CurrentDescriptor.IsParserReady()) CurrentDescriptor.InitParser();
  FillLists();
  if (IsOlderWindows()) {
    description_->fontFace = kEastAsianFace;
    copyright_->fontFace = kEastAsianFace;
  }
  LoadFromDescriptor();
  initialised = true;
  return true;
}

void CAppSettingsDlg::FillLists() {
  for (const std::uint32_t row : {messages::kSystemChrome, messages::kCustomChromeOpaque,
                                  messages::kCustomChromeTransparent}) {
    windowStyle_->AddString(Message(row));
  }
}

int CAppSettingsDlg::LoadFromDescriptor() {
  descriptorPath = DocumentDescriptorPath();
  BringFirstNamespacesForward();
  LoadNames();
  LoadDescription();
  windowStyle_->SetCurSel(WindowStyleToShow());
  outputFile_->text = UsableOutputFile();
  installer_->checked = SettingsEquals(keys::kPublishExe, u"true");
  LoadProfiles();
  FillIncludedFiles(*includedFiles_);
  return 0;
}

void CAppSettingsDlg::LoadNames() {
  LoadField(*fileName_, "filename");
  LoadLocalisableField(*appName_, "name");
  LoadField(*appId_, "id");
  LoadField(*version_, "versionNumber");
}

void CAppSettingsDlg::LoadDescription() {
  if (LoadLocalisableField(*description_, "description")) {
    description_->fontFace = kEastAsianFace;
    description_->text = WithEditLineBreaks(description_->text);
  }
  LoadField(*copyright_, "copyright");
}

// No such element stands for all profiles.
void CAppSettingsDlg::LoadProfiles() {
  const auto supported = DescriptorText("supportedProfiles");
  for (const Profile& profile : kProfiles) {
    profiles_[profile.box]->checked =
        !supported || supported->find(profile.word) != supported->npos;
  }
}

void CAppSettingsDlg::OnOK() {
  if (StoreToDescriptor() == 0) CPropertyPage::OnOK();
}

int CAppSettingsDlg::StoreToDescriptor() {
  if (!AcceptApplicationId(appId_->text)) return 1;
  CurrentDescriptor.SetText("id", appId_->text);
  StoreNames();
  StoreDescription();
  StoreOutput();
  StoreWindowStyle();
  StoreInstaller();
  StoreProfiles();
  SyncIncludedFiles();
  CurrentDescriptor.Save(descriptorPath);
  return 0;
}

void CAppSettingsDlg::StoreNames() {
  if (!appName_->text.empty() && !IsLocalised("name")) {
    CurrentDescriptor.SetText("name", appName_->text);
    CurrentDescriptor.SetText("filename", appName_->text);
  }
  if (!version_->text.empty()) CurrentDescriptor.SetText("versionNumber", version_->text);
}

void CAppSettingsDlg::StoreDescription() {
  if (!IsLocalised("description")) {
    StoreTextOrClear("description", WithPlainLineBreaks(description_->text));
  }
  StoreTextOrClear("copyright", copyright_->text);
}

void CAppSettingsDlg::StoreOutput() {
  const std::u16string path = OutputFileOf(*outputFile_);
  if (!path.empty() && StoreSetting(keys::kTavDestination, path)) changed = true;
}

void CAppSettingsDlg::StoreWindowStyle() {
  const int row = std::max(windowStyle_->GetCurSel(), kSystemChromeRow);
  const WindowStyle& style = kWindowStyles[static_cast<std::size_t>(row)];
  SettingsSet(keys::kWindowType, style.setting);
  SetChildTextIfValid("initialWindow", "systemChrome", style.systemChrome);
  SetChildTextIfValid("initialWindow", "transparent", style.transparent);
}

void CAppSettingsDlg::StoreInstaller() {
  if (StoreSetting(keys::kPublishExe, installer_->checked ? u"true" : u"false")) changed = true;
}

void CAppSettingsDlg::StoreProfiles() {
  std::size_t count = 0;
  std::u16string value;
  for (const Profile& profile : kProfiles) {
    if (!profiles_[profile.box]->checked) continue;
    value += profile.stored;
    ++count;
  }
  if (count == 0 || count == kProfiles.size()) {
    CurrentDescriptor.RemoveChild("application", "supportedProfiles");
  } else {
    CurrentDescriptor.SetChildText("application", "supportedProfiles", value);
  }
}

// A user's row with the name of an extension package is left out, but counted.
void CAppSettingsDlg::SyncIncludedFiles() {
  ClearIncludedItems();
  const int rows = includedFiles_->GetCount();
  if (rows <= kMovieRows) return;
  const auto extensions = ExtensionRows();
  int item = 0;
  for (int row = kMovieRows; row < rows; ++row) {
    const std::u16string& text = includedFiles_->GetRow(row);
    if (!Holds(extensions, text)) StoreIncludedItem(item++, text);
  }
  const int extensionRows = static_cast<int>(extensions.size());
  SettingsSet(keys::kIncludedCount, ToDecimal(rows - kMovieRows - extensionRows));
}

void CAppSettingsDlg::BrowseOutput() { BrowseOutputFile(*outputFile_, u"tav", messages::kTavFile); }

void CAppSettingsDlg::AddFile() {
  if (AddIncludedFile(*includedFiles_, u"")) changed = true;
}

void CAppSettingsDlg::AddFolder() {
  if (AddIncludedFolder(*includedFiles_)) changed = true;
}

void CAppSettingsDlg::Delete() {
  if (DeleteIncludedRow(*includedFiles_, kMovieRows)) changed = true;
}

void CAppSettingsDlg::OnIncludedFileSelected() {
  const int selected = includedFiles_->GetCurSel();
  if (selected < 0) return;
  delete_->enabled =
      selected >= kMovieRows && !Holds(ExtensionRows(), includedFiles_->GetRow(selected));
}

}  // namespace qutav
