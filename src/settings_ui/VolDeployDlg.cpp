#include "settings_ui/VolDeployDlg.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "descriptor/DescriptorDocument.h"
#include "framework/MessageBoxes.h"
#include "framework/layout/Parts.h"
#include "platform/Services.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/FileChooser.h"
#include "settings_ui/GeneralFields.h"
#include "settings_ui/ProvisioningProfile.h"
#include "settings_ui/RecentFiles.h"
#include "support/HelpLinks.h"
#include "support/Paths.h"
#include "support/RegistryStore.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

struct DeployType {
  const char16_t* stored;
  const char16_t* label;
  std::uint32_t captionId;
};

constexpr DeployType kDeployTypes[] = {
    {u"test", u"Quick publishing for device testing", texts::kIosDeployTest},
    {u"debug", u"Quick publishing for device debugging", texts::kIosDeployDebug},
    {u"adhoc", u"Deployment - Ad hoc", texts::kIosDeployAdHoc},
    {u"store", u"Deployment - Apple App Store", texts::kIosDeployStore},
};

constexpr int kFieldEmpty = 1;
constexpr int kFileMissing = 2;

}  // namespace

CVolDeployDlg::CVolDeployDlg()
    : CPropertyPage(u"CVolDeployDlg", u"Deployment", texts::kIosDeploymentTitle),
      certificate_{keys::kIpaCertificatePath,
                   u"Last IPA Cert",
                   u"IpaCertPath",
                   u" (*.p12)|*.p12||",
                   messages::kCertificateNotChosen,
                   messages::kCertificateMissing},
      profile_{keys::kIpaProvisioningProfile,
               u"Last IPA Provision",
               u"MobileProvisionFiles",
               u" (*.mobileprovision)|*.mobileprovision||",
               messages::kProvisioningProfileMissing,
               messages::kProvisioningFileMissing} {
  SetLayout(layout::Column({AddSigningFields(), AddDeploymentTypes()}, layout::kUnrelated));
}

Layout CVolDeployDlg::AddSigningFields() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"iPhone digital signature", texts::kIosSignatureGroup);
  auto& hint = Add<Label>(u"Use an iPhone certificate (.p12)", texts::kIosCertificateHint);
  auto& moreInfo = Add<Button>(u"More Info", texts::kIosMoreInfo);
  moreInfo.onClick = [] { OpenHelpLink(kIosHelp); };
  certificate_.combo = &Add<ComboBox>(u"Certificate:", texts::kIosCertificate);
  auto& browseCertificate = Add<Button>(u"Browse...", texts::kIosBrowse);
  browseCertificate.onClick = [this] { BrowseCertificate(); };
  password_ = &Add<Edit>(u"Password:", texts::kIosPassword);
  password_->style = EditStyle::kPassword;
  remember_ = &Add<CheckBox>(u"Remember password for this session", texts::kIosRemember);
  profile_.combo = &Add<ComboBox>(u"Provisioning profile:", texts::kIosProfile);
  profile_.combo->onSelectionEnd = [this] { ApplyProvisioningProfile(); };
  auto& browseProfile = Add<Button>(u"Browse...", texts::kIosBrowse);
  browseProfile.onClick = [this] { BrowseProfile(); };
  applicationId_ = &Add<Edit>(u"App ID:", texts::kIosApplicationId);
  return Group(
      group, Column({Row({hint, Space(), moreInfo}),
                     Form({Line(*certificate_.combo, Row({*certificate_.combo, browseCertificate})),
                           Line(*password_), Indented(*remember_),
                           Line(*profile_.combo, Row({*profile_.combo, browseProfile})),
                           Line(*applicationId_)})}));
}

Layout CVolDeployDlg::AddDeploymentTypes() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"iPhone deployment type", texts::kIosDeployTypeGroup);
  Parts radios;
  for (std::int32_t type = 0; type < std::ssize(kDeployTypes); ++type) {
    auto& radio = Add<RadioButton>(kDeployTypes[type].label, kDeployTypes[type].captionId);
    radio.onClick = [this, type] { ChooseDeployType(type); };
    deployTypes_.Add(radio);
    radios.emplace_back(radio);
  }
  return Group(group, Column(std::move(radios)));
}

// Runs again after a failed validation, over what was typed since.
bool CVolDeployDlg::OnInitDialog() {
  CPropertyPage::OnInitDialog();
  LoadDeployType();
  LoadPassword();
  LoadFile(certificate_);
  LoadFile(profile_);
  LoadApplicationId();
  certificate_.combo->FitDropWidth();
  profile_.combo->FitDropWidth();
  deployTypes_.Select(iosDeployType);
  initialised = true;
  return true;
}

void CVolDeployDlg::LoadDeployType() {
  const auto* type = std::find_if(
      std::begin(kDeployTypes), std::end(kDeployTypes),
      [](const DeployType& row) { return SettingsEquals(keys::kIpaOption, row.stored); });
  iosDeployType =
      type == std::end(kDeployTypes) ? 0 : static_cast<std::int32_t>(type - kDeployTypes);
}

void CVolDeployDlg::LoadPassword() {
  remember_->checked = SettingsEquals(keys::kIpaRememberPassword, u"true");
  if (!remember_->checked) return;
  const std::u16string password = SettingsGet(keys::kIpaCertificatePassword);
  if (!password.empty()) password_->text = password;
}

void CVolDeployDlg::LoadFile(const FileField& field) {
  ComboBox& combo = *field.combo;
  AddRecentFiles(combo, field.recentFiles);
  const std::u16string stored = SettingsGet(field.key);
  if (!stored.empty() && TheServices().files->Exists(stored)) {
    const std::u16string path = WithBackslashes(stored);
    if (combo.FindString(path) < 0) combo.InsertString(0, path);
    SelectRecentFile(combo, path);
    return;
  }
  std::u16string last;
  GetRegistryString(field.lastChoice, last);
  SelectRecentFile(combo, last);
}

void CVolDeployDlg::LoadApplicationId() { CurrentDescriptor.GetText("id", applicationId_->text); }

void CVolDeployDlg::BrowseCertificate() {
  const auto path = ChooseFileToOpen(certificate_.filter);
  if (!path) return;
  AddPathToCombo(*certificate_.combo, *path);
  certificate_.combo->FitDropWidth();
}

// A profile that is listed already changes neither the selection nor the App ID.
void CVolDeployDlg::BrowseProfile() {
  const auto path = ChooseFileToOpen(profile_.filter);
  if (!path) return;
  ComboBox& combo = *profile_.combo;
  if (AddPathToCombo(combo, *path)) {
    combo.SetCurSel(combo.GetCount() - 1);
    ApplyProvisioningProfile();
  }
  combo.FitDropWidth();
}

void CVolDeployDlg::ChooseDeployType(std::int32_t type) {
  iosDeployType = type;
  SettingsSet(keys::kIpaOption, kDeployTypes[type].stored);
  changed = true;
}

void CVolDeployDlg::ApplyProvisioningProfile() {
  const ComboBox& combo = *profile_.combo;
  const int selected = combo.GetCurSel();
  const auto identifier =
      ReadProvisioningProfile(selected < 0 ? std::u16string() : combo.GetRow(selected));
  if (!identifier) return;
  applicationId_->text = CoveredApplicationId(*identifier, applicationId_->text);
}

int CVolDeployDlg::SaveToSettings(bool validate) {
  if (const int refused = StoreFile(certificate_, validate)) return refused;
  SettingsSet(keys::kIpaRememberPassword, remember_->checked ? u"true" : u"false");
  if (const int refused = StorePassword(validate)) return refused;
  if (const int refused = StoreFile(profile_, validate)) return refused;
  StoreApplicationId();
  SettingsSet(keys::kIpaOption, kDeployTypes[iosDeployType].stored);
  return 0;
}

int CVolDeployDlg::StoreFile(const FileField& field, bool validate) {
  const std::u16string& path = field.combo->text;
  if (path.empty()) return validate ? Refuse(field.emptyMessage, kFieldEmpty) : 0;
  if (validate && !TheServices().files->Exists(path)) {
    return Refuse(field.missingMessage, kFileMissing);
  }
  KeepFile(field);
  return 0;
}

void CVolDeployDlg::KeepFile(const FileField& field) {
  const std::u16string path = WithForwardSlashes(field.combo->text);
  if (StoreSetting(field.key, path)) changed = true;
  SetRegistryString(field.lastChoice, path);
  SaveRecentFiles(*field.combo, field.recentFiles);
}

int CVolDeployDlg::StorePassword(bool validate) {
  if (password_->text.empty()) return validate ? Refuse(messages::kPasswordEmpty, kFieldEmpty) : 0;
  SettingsSet(keys::kIpaCertificatePassword, password_->text);
  return 0;
}

void CVolDeployDlg::StoreApplicationId() {
  if (!applicationId_->text.empty()) CurrentDescriptor.SetText("id", applicationId_->text);
}

int CVolDeployDlg::Refuse(std::uint32_t message, int result) {
  ShowWarning(Message(message));
  OnInitDialog();
  return result;
}

}  // namespace qutav
