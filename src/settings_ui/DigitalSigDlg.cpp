#include "settings_ui/DigitalSigDlg.h"

#include <algorithm>

#include "framework/layout/Parts.h"
#include "packaging/SelfSignDlg.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/FileChooser.h"
#include "settings_ui/RecentFiles.h"
#include "support/HostConfiguration.h"
#include "support/NetworkInterfaces.h"
#include "support/Paths.h"
#include "support/RegistryStore.h"
#include "support/RuntimeVersion.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// From here on there is no package for the emulator, and a package to debug embeds the runtime.
bool DebugEmbedsRuntime() { return RuntimeIsAtLeast(u"TAV3.8"); }

// From here on every package embeds the runtime.
bool RuntimeIsAlwaysEmbedded() { return RuntimeIsAtLeast(u"TAV26.0"); }

// Unlike other lists of this form, this one may lack the ":" at its end.
std::vector<std::u16string> StoredDevices() {
  const std::u16string stored = SettingsGet(keys::kInstallDevices);
  std::vector<std::u16string> serials;
  SplitColonList(stored, serials);
  std::u16string rest = Trimmed(stored.substr(stored.rfind(u':') + 1));
  if (!rest.empty()) serials.push_back(std::move(rest));
  return serials;
}

std::vector<MarketEntry> ReadHostMarkets() {
  DescriptorDocument reader;
  std::vector<MarketEntry> markets;
  ReadMarkets(reader, markets, HostConfigurationFile(u"Markets.xml"));
  reader.Close();
  return markets;
}

}  // namespace

CDigitalSigDlg::CDigitalSigDlg()
    : CPropertyPage(u"CDigitalSigDlg", u"Deployment", texts::kDeployTitle) {
  SetLayout(layout::Column({AddCertificateControls(), AddDeploymentControls(), AddRuntimeControls(),
                            AddDeviceControls()},
                           layout::kUnrelated));
}

Layout CDigitalSigDlg::AddCertificateControls() {
  using namespace layout;
  certificate_ = &Add<ComboBox>(u"Certificate:", texts::kDeployCertificate);
  certificate_->sorted = true;
  auto& browse = Add<Button>(u"Browse...", texts::kDeployBrowse);
  browse.onClick = [this] { BrowseCertificate(); };
  auto& create = Add<Button>(u"Create...", texts::kDeployCreate);
  create.onClick = [this] { CreateCertificate(); };
  password_ = &Add<Edit>(u"Password:", texts::kDeployPassword);
  password_->style = EditStyle::kPassword;
  remember_ = &Add<CheckBox>(u"Remember password for this session", texts::kDeployRemember);
  return Form({Line(*certificate_, Row({*certificate_, SameWidth({browse, create})})),
               Line(*password_), Indented(*remember_)});
}

Layout CDigitalSigDlg::AddDeploymentControls() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"Android deployment type", texts::kDeployType);
  auto& release = Add<RadioButton>(u"Device release", texts::kDeployDeviceRelease);
  release.onClick = [this] { ChooseDeviceRelease(); };
  auto& emulator = Add<RadioButton>(u"Emulator release", texts::kDeployEmulatorRelease);
  emulator.onClick = [this] { ChooseEmulatorRelease(); };
  auto& debug = Add<RadioButton>(u"Debug", texts::kDeployDebug);
  debug.onClick = [this] { ChooseDebug(); };
  for (RadioButton* radio : {&release, &emulator, &debug}) deployRadios_.Add(*radio);
  network_ = &Add<ComboBox>(u"Network interface for remote debugging:", texts::kDeployNetwork);
  network_->style = ComboStyle::kDropList;
  network_->sorted = true;
  network_->onSelectionEnd = [this] { changed = true; };
  return Group(group,
               Column({Row({release, emulator, debug}, kUnrelated), Form({Line(*network_)})}));
}

Layout CDigitalSigDlg::AddRuntimeControls() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"TAV runtime", texts::kDeployRuntime);
  auto& embed = Add<RadioButton>(u"Embed TAV runtime with application", texts::kDeployEmbed);
  embed.onClick = [this] { market_->enabled = false; };
  auto& getFrom = Add<RadioButton>(u"Get TAV runtime from:", texts::kDeployGetFrom);
  getFrom.onClick = [this] { market_->enabled = true; };
  for (RadioButton* radio : {&embed, &getFrom}) runtimeRadios_.Add(*radio);
  market_ = &Add<ComboBox>(u"Get TAV runtime from:", texts::kDeployGetFrom);
  market_->style = ComboStyle::kDropList;
  return Group(group, Column({embed, Row({getFrom, *market_})}));
}

Layout CDigitalSigDlg::AddDeviceControls() {
  using namespace layout;
  auto& group = Add<GroupBox>(u"After publishing", texts::kDeployAfter);
  install_ =
      &Add<CheckBox>(u"Install application on the connected Android device", texts::kDeployInstall);
  install_->onClick = [this] { SwitchInstall(); };
  launch_ =
      &Add<CheckBox>(u"Launch application on the connected Android device", texts::kDeployLaunch);
  launch_->onClick = [this] { SwitchLaunch(); };
  devices_ = &Add<CheckList>(u"Device Serial Number", messages::kDeviceSerialNumber);
  devices_->columnWidth = 160;
  refresh_ = &Add<Button>(u"Refresh", texts::kDeployRefresh);
  refresh_->onClick = [this] { RefreshList(); };
  return Group(group, Column({*install_, *launch_, Row({List(*devices_, 3, 120), *refresh_})}));
}

// --- Loading -----------------------------------------------------------------------------------

bool CDigitalSigDlg::OnInitDialog() {
  LoadCertificates();
  LoadPassword();
  LoadRuntimeChoice();
  LoadDeployType();
  LoadAfterPublish();
  LoadNetworkInterfaces();
  LoadMarkets();
  certificate_->FitDropWidth();
  ShowRadios();
  initialised = true;
  return CPropertyPage::OnInitDialog();
}

void CDigitalSigDlg::LoadCertificates() {
  AddRecentFiles(*certificate_, u"CertPath Android");
  std::u16string last;
  GetRegistryString(u"Last Selected Cert Android", last);
  SelectRecentFile(*certificate_, last);
}

void CDigitalSigDlg::LoadPassword() {
  if (!SettingsEquals(keys::kRememberPassword, u"true")) return;
  remember_->checked = true;
  password_->text = SettingsGet(keys::kCertificatePassword);
}

void CDigitalSigDlg::LoadRuntimeChoice() {
  // Of all levels this one alone takes every stored choice for embedding.
  const bool embeds =
      SettingsEquals(keys::kRuntimeType, u"embed") || CompareRuntimeVersion(u"TAV3.8") == 0;
  runtimeChoice = embeds || RuntimeIsAlwaysEmbedded() ? kEmbed : kGetFromMarket;
  runtimeRadios_.At(kGetFromMarket).enabled = !RuntimeIsAlwaysEmbedded();
}

void CDigitalSigDlg::LoadDeployType() {
  const std::u16string type = SettingsGet(keys::kPublishType);
  if (DebugEmbedsRuntime()) {
    deployRadios_.At(kEmulatorRelease).enabled = false;
  } else if (type == u"release-emulator") {
    deployType = kEmulatorRelease;
    TakeFromMarket();
  }
  if (type == u"debug") {
    deployType = kDebug;
    ApplyDebugRuntime();
  }
}

void CDigitalSigDlg::LoadAfterPublish() {
  const std::u16string option = InstallOption();
  if (option == u"install") afterPublish = kInstall;
  if (option == u"launch") afterPublish = kLaunch;
  ShowAfterPublish();
}

void CDigitalSigDlg::LoadNetworkInterfaces() {
  network_->AddString(Message(messages::kDefaultChoice));
  std::vector<std::u16string> interfaces;
  if (ListNetworkInterfaces(interfaces) == 0) {
    for (const std::u16string& text : interfaces) network_->AddString(text);
  }
  const std::u16string stored = SettingsGet(keys::kHostAddress);
  const int found = stored.empty() ? 0 : network_->FindStringExact(stored);
  network_->SetCurSel(std::max(found, 0));
  network_->enabled = deployType == kDebug;
}

void CDigitalSigDlg::LoadMarkets() {
  if (RuntimeIsAlwaysEmbedded()) {
    market_->enabled = false;
    return;
  }
  const std::u16string stored = SettingsGet(keys::kMarketUrl);
  markets = ReadHostMarkets();
  for (const MarketEntry& market : markets) market_->AddString(market.name);
  const auto chosen = std::find_if(markets.begin(), markets.end(),
                                   [&](const MarketEntry& market) { return market.url == stored; });
  market_->SetCurSel(chosen == markets.end() ? 0 : static_cast<int>(chosen - markets.begin()));
  market_->enabled = runtimeChoice == kGetFromMarket;
}

// --- Certificate -------------------------------------------------------------------------------

void CDigitalSigDlg::BrowseCertificate() {
  const auto chosen = ChooseFileToOpen(Message(messages::kP12File) + u" (*.p12)|*.p12|" +
                                       Message(messages::kPfxFile) + u" (*.pfx)|*.pfx|" +
                                       Message(messages::kJksFile) + u" (*.jks)|*.jks||");
  if (!chosen) return;
  AddPathToCombo(*certificate_, *chosen);
  certificate_->FitDropWidth();
}

void CDigitalSigDlg::CreateCertificate() {
  if (CSelfSignDlg(TheServices().frontEnd->FocusWindow()).DoModal() != kIdOk) return;
  const std::u16string created = SettingsGet(keys::kCertificatePath);
  if (!created.empty()) AddPathToCombo(*certificate_, WithBackslashes(created));
}

// --- Deployment type and runtime ---------------------------------------------------------------

void CDigitalSigDlg::ChooseDeviceRelease() {
  deployType = kDeviceRelease;
  runtimeRadios_.At(kEmbed).enabled = true;
  if (!RuntimeIsAlwaysEmbedded()) runtimeRadios_.At(kGetFromMarket).enabled = true;
  network_->enabled = false;
  changed = true;
}

void CDigitalSigDlg::ChooseEmulatorRelease() {
  deployType = kEmulatorRelease;
  TakeFromMarket();
  market_->enabled = true;
  network_->enabled = false;
  ShowRadios();
  changed = true;
}

void CDigitalSigDlg::ChooseDebug() {
  deployType = kDebug;
  ApplyDebugRuntime();
  market_->enabled = runtimeChoice == kGetFromMarket;
  network_->enabled = true;
  ShowRadios();
  changed = true;
}

void CDigitalSigDlg::TakeFromMarket() {
  runtimeRadios_.At(kEmbed).enabled = false;
  runtimeChoice = kGetFromMarket;
}

void CDigitalSigDlg::ApplyDebugRuntime() {
  const bool embeds = DebugEmbedsRuntime();
  runtimeRadios_.At(kEmbed).enabled = embeds;
  runtimeRadios_.At(kGetFromMarket).enabled = !embeds;
  runtimeChoice = embeds ? kEmbed : kGetFromMarket;
}

void CDigitalSigDlg::ShowRadios() {
  deployRadios_.Select(deployType);
  runtimeRadios_.Select(runtimeChoice);
}

// --- Devices -----------------------------------------------------------------------------------

void CDigitalSigDlg::SwitchInstall() {
  afterPublish = install_->checked ? kInstall : kNothing;
  ShowAfterPublish();
}

void CDigitalSigDlg::SwitchLaunch() { afterPublish = launch_->checked ? kLaunch : kInstall; }

void CDigitalSigDlg::ShowAfterPublish() {
  const bool installs = afterPublish != kNothing;
  install_->checked = installs;
  launch_->enabled = installs;
  launch_->checked = afterPublish == kLaunch;
  devices_->enabled = installs;
  refresh_->enabled = installs;
  if (installs) PrepareDeviceList();
}

void CDigitalSigDlg::PrepareDeviceList() {
  if (listReady) return;
  listReady = true;
  checkedDevices = StoredDevices();
  FillDeviceList(false);
}

void CDigitalSigDlg::FillDeviceList(bool force) {
  devices_->DeleteAllRows();
  RefreshDevices(force);
  if (!ReadDeviceList(deviceRows)) return;
  for (const auto& [serial, state] : deviceRows) {
    devices_->InsertRow(serial);
    const bool checked =
        std::find(checkedDevices.begin(), checkedDevices.end(), serial) != checkedDevices.end();
    devices_->SetCheck(devices_->GetCount() - 1, checked);
  }
}

void CDigitalSigDlg::RefreshList() {
  checkedDevices = devices_->CheckedRows();
  FillDeviceList(true);
}

}  // namespace qutav
