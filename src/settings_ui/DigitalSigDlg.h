#pragma once

#include <string>
#include <vector>

#include "descriptor/Markets.h"
#include "framework/CPropertyPage.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "packaging/DeviceBridge.h"

namespace qutav {

/// The "Deployment" page of the Android form: certificate, kind of package, where the application
/// gets the runtime from, and the devices on which it is installed.
class CDigitalSigDlg : public CPropertyPage {
 public:
  CDigitalSigDlg();

  /// What `SaveToSettings` gives.
  enum SaveResult : int {
    kSaved = 0,
    kIncomplete = 1,   ///< a required field is empty, or no device is usable
    kFileMissing = 2,  ///< a file that the page names does not exist
  };

  /// Stores the page in settings and registry. With `validate` the first thing that is wrong is
  /// told and ends it; what was stored before stays.
  int SaveToSettings(bool validate);

  /// Lists the devices anew, asking for them only when that has not been done or when forced.
  void FillDeviceList(bool force);

  bool initialised = false;
  bool changed = false;

  enum DeployType : int { kDeviceRelease = 0, kEmulatorRelease = 1, kDebug = 2 };
  int deployType = kDeviceRelease;

  enum RuntimeChoice : int { kEmbed = 0, kGetFromMarket = 1 };
  int runtimeChoice = kGetFromMarket;

  enum AfterPublish : int { kNothing = 0, kInstall = 1, kLaunch = 2 };
  int afterPublish = kNothing;

  bool listReady = false;  ///< the device list has been prepared
  std::vector<MarketEntry> markets;
  std::vector<DevicePair> deviceRows;
  std::vector<std::u16string> checkedDevices;  ///< serials to check in the list

 protected:
  bool OnInitDialog() override;

 private:
  Layout AddCertificateControls();
  Layout AddDeploymentControls();
  Layout AddRuntimeControls();
  Layout AddDeviceControls();

  void LoadCertificates();
  void LoadPassword();
  void LoadRuntimeChoice();
  void LoadDeployType();
  void LoadAfterPublish();
  void LoadNetworkInterfaces();
  void LoadMarkets();

  void BrowseCertificate();
  void CreateCertificate();
  void ChooseDeviceRelease();
  void ChooseEmulatorRelease();
  void ChooseDebug();
  void SwitchInstall();
  void SwitchLaunch();
  void RefreshList();

  void TakeFromMarket();
  void ApplyDebugRuntime();
  void ShowRadios();
  void ShowAfterPublish();
  void PrepareDeviceList();

  int SaveCertificate(bool validate);
  void SaveChoices() const;
  void SaveMarket() const;
  int SaveDevices(bool validate);

  ComboBox* certificate_ = nullptr;
  Edit* password_ = nullptr;
  CheckBox* remember_ = nullptr;
  RadioGroup deployRadios_;
  ComboBox* network_ = nullptr;
  RadioGroup runtimeRadios_;
  ComboBox* market_ = nullptr;
  CheckBox* install_ = nullptr;
  CheckBox* launch_ = nullptr;
  CheckList* devices_ = nullptr;
  Button* refresh_ = nullptr;
};

}  // namespace qutav
