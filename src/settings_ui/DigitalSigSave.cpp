// What the Android deployment page stores.
#include <array>

#include "framework/MessageBoxes.h"
#include "platform/Services.h"
#include "settings_ui/DigitalSigDlg.h"
#include "settings_ui/RecentFiles.h"
#include "support/Paths.h"
#include "support/RegistryStore.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// Stored texts by the numbers that they stand for.
constexpr std::array kAfterPublishTexts = {u"nothing", u"install", u"launch"};
constexpr std::array kDeployTypeTexts = {u"release", u"release-emulator", u"debug"};
constexpr std::array kRuntimeTexts = {u"embed", u"share"};

template <std::size_t Count>
std::u16string TextOf(const std::array<const char16_t*, Count>& texts, int number) {
  return texts.at(static_cast<std::size_t>(number));
}

int Refuse(std::uint32_t messageId, int result) {
  ShowWarning(Message(messageId));
  return result;
}

}  // namespace

int CDigitalSigDlg::SaveToSettings(bool validate) {
  deployType = deployRadios_.Selected();
  runtimeChoice = runtimeRadios_.Selected();
  SetRegistryString(u"DigitalSign", u"sign");
  const int certificate = SaveCertificate(validate);
  if (certificate != kSaved) return certificate;
  if (validate && password_->text.empty()) return Refuse(messages::kPasswordEmpty, kIncomplete);
  SaveChoices();
  SaveMarket();
  SettingsSet(keys::kHostAddress, network_->text);
  return SaveDevices(validate);
}

int CDigitalSigDlg::SaveCertificate(bool validate) {
  const std::u16string& path = certificate_->text;
  if (validate && path.empty()) return Refuse(messages::kCertificateNotChosen, kIncomplete);
  if (validate && !TheServices().files->Exists(path)) {
    return Refuse(messages::kCertificateMissing, kFileMissing);
  }
  SettingsSet(keys::kCertificatePath, WithForwardSlashes(path));
  SetRegistryString(u"Last Selected Cert Android", WithForwardSlashes(path));
  SaveRecentFiles(*certificate_, u"CertPath Android");
  return kSaved;
}

void CDigitalSigDlg::SaveChoices() const {
  const std::u16string after = TextOf(kAfterPublishTexts, afterPublish);
  SettingsSet(keys::kAdbOption, after);
  SetRegistryString(u"Last ADB Opt", after);
  SettingsSet(keys::kCertificatePassword, password_->text);
  SettingsSet(keys::kRememberPassword, remember_->checked ? u"true" : u"false");
  SettingsSet(keys::kPublishType, TextOf(kDeployTypeTexts, deployType));
  SettingsSet(keys::kRuntimeType, TextOf(kRuntimeTexts, runtimeChoice));
}

void CDigitalSigDlg::SaveMarket() const {
  const auto selection = static_cast<std::size_t>(market_->GetCurSel());
  if (market_->GetCurSel() >= 0 && selection < markets.size()) {
    SettingsSet(keys::kMarketUrl, markets[selection].url);
  } else {
    SettingsRemove(keys::kMarketUrl);
  }
}

int CDigitalSigDlg::SaveDevices(bool validate) {
  checkedDevices = devices_->CheckedRows();
  if (validate && install_->checked && checkedDevices.empty()) {
    return Refuse(devices_->GetCount() > 0 ? messages::kNoDeviceSelected : messages::kNoDeviceFound,
                  kIncomplete);
  }
  std::u16string chosen;
  for (const std::u16string& serial : checkedDevices) chosen += serial + u":";
  if (!SettingsEquals(keys::kInstallDevices, chosen)) {
    SettingsSet(keys::kInstallDevices, chosen);
    changed = true;
  }
  return kSaved;
}

}  // namespace qutav
