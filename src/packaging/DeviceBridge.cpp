#include "packaging/DeviceBridge.h"

#include <algorithm>
#include <chrono>

#include "descriptor/DescriptorDocument.h"
#include "packaging/DeviceTools.h"
#include "packaging/PublishCancelled.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "support/ProcessRunner.h"
#include "support/RegistryStore.h"
#include "win/HostScript.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

bool AdbServerStarted = false;
bool DeviceListFetched = false;
std::u16string DebugDeviceSerial;

namespace {

constexpr std::chrono::milliseconds kServerStart{5000};

bool RunsOnDevice() {
  return SettingsEquals(keys::kTestOnDevice, u"true") ||
         SettingsEquals(keys::kDebugOnDevice, u"true");
}

bool UsesChosenDevice() { return RunsOnDevice() && !DebugDeviceSerial.empty(); }

void StartAdbServer() {
  std::u16string scratch;
  RunProcess(AdbProgram() + u" start-server", false, scratch);
}

// The level is compared as a plain text here, not as a version.
std::u16string ListingCommand() {
  if (SettingsGet(keys::kRuntimeKit) < u"TAV3.4") return AdbProgram() + u" devices";
  return DeviceToolPrefix() + u"-devices -platform android";
}

std::vector<std::u16string> Lines(const std::u16string& text) {
  std::vector<std::u16string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find(u'\n', start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

bool NamesNoDevice(const std::u16string& line) {
  return line.empty() || line.find(u"List of devices") != line.npos ||
         line.find(u"no device") != line.npos;
}

void StoreDevices(const std::vector<DevicePair>& devices) {
  std::u16string serials;
  std::u16string states;
  for (const auto& [serial, state] : devices) {
    serials += serial + u":";
    states += state + u":";
  }
  SettingsSet(keys::kDeviceSerials, serials);
  SettingsSet(keys::kDeviceStates, states);
}

void SendDevicesToHost() {
  EvaluateHostScript(HostContext, u"qu.getDocumentDOM().updateConnectedDevices(\"" +
                                      SettingsGet(keys::kDeviceSerials) + u"\",\"android\");");
}

// A run on a device has exactly one, even if it has no name.
std::vector<std::u16string> ChosenSerials() {
  std::vector<std::u16string> chosen;
  SplitColonList(RunsOnDevice() ? DebugDeviceSerial + u":" : SettingsGet(keys::kInstallDevices),
                 chosen);
  return chosen;
}

bool IsAttached(const std::vector<DevicePair>& devices, const std::u16string& serial) {
  return std::any_of(devices.begin(), devices.end(),
                     [&](const DevicePair& device) { return device.first == serial; });
}

bool IsInstalling(const std::u16string& option) {
  return option == u"install" || option == u"launch";
}

void ForwardDebugPort() {
  std::u16string port;
  GetRegistryString(u"usbPort", port);
  if (port.empty()) port = u"7936";
  std::u16string command = AdbProgram();
  if (UsesChosenDevice()) command += u" -s " + DebugDeviceSerial;
  std::u16string scratch;
  RunProcess(command + u" forward tcp:" + port + u" tcp:" + port, false, scratch);
}

std::u16string ErrorBlock(const std::u16string& serial, const std::u16string& error) {
  return Message(messages::kDeviceSerialNumber) + serial + u" : " + error + u"\n\n";
}

std::u16string InstallError(std::int32_t exitCode, const std::u16string& output) {
  switch (exitCode) {
    case 12:
    case 15:
      return Message(messages::kDevicesNotConnected);
    case 14:
      return Message(messages::kDeviceUnexpectedError) + u" " + output;
    default:
      return Message(messages::kInstallUnexpectedError) + u"\n" + output;
  }
}

// The package on its way to devices.
struct Installation {
  std::u16string packagePath;
  std::u16string appId;
  std::u16string toolPrefix;

  bool On(const std::u16string& serial, std::u16string& errors) const {
    std::u16string error;
    if (InstallOnDevice(packagePath, appId, toolPrefix, serial, error)) return true;
    errors += ErrorBlock(serial, error);
    return false;
  }

  // One device after the other; a failure does not keep the others from their turn.
  bool OnAll(const std::vector<std::u16string>& serials, std::u16string& errors) const {
    bool all = true;
    for (const std::u16string& serial : serials) {
      if (PublishCancelled.load(std::memory_order_relaxed) != 0) return false;
      all = On(serial, errors) && all;
    }
    return all;
  }
};

}  // namespace

std::vector<DevicePair> ParseDeviceListing(const std::u16string& output) {
  std::vector<DevicePair> devices;
  for (const std::u16string& line : Lines(output)) {
    const std::size_t tab = line.find(u'\t');
    if (NamesNoDevice(line) || tab == line.npos || tab + 1 == line.size()) continue;
    DevicePair device{Trimmed(line.substr(0, tab)), Trimmed(line.substr(tab + 1))};
    if (!device.first.empty()) devices.push_back(std::move(device));
  }
  return devices;
}

bool ListDevices() {
  if (!AdbServerStarted) {
    StartAdbServer();
    TheServices().clock->Sleep(kServerStart);
    AdbServerStarted = true;
  }
  std::u16string output;
  if (RunProcess(ListingCommand(), true, output) != 0) return false;
  const std::vector<DevicePair> devices = ParseDeviceListing(output);
  StoreDevices(devices);
  return !devices.empty();
}

void RefreshDevices(bool force) {
  if (!force && DeviceListFetched) return;
  ListDevices();
  DeviceListFetched = true;
  SendDevicesToHost();
}

int SplitColonList(std::u16string_view text, std::vector<std::u16string>& out) {
  for (std::size_t colon = text.find(u':'); colon != text.npos; colon = text.find(u':')) {
    out.emplace_back(text.substr(0, colon));
    text.remove_prefix(colon + 1);
  }
  return static_cast<int>(out.size());
}

bool ReadDeviceList(std::vector<DevicePair>& out) {
  out.clear();
  std::vector<std::u16string> serials;
  std::vector<std::u16string> states;
  if (SplitColonList(SettingsGet(keys::kDeviceSerials), serials) == 0) return false;
  SplitColonList(SettingsGet(keys::kDeviceStates), states);
  if (serials.size() != states.size()) return false;
  for (std::size_t i = 0; i < serials.size(); ++i) out.emplace_back(serials[i], states[i]);
  return true;
}

int CheckSelectedDevices(std::u16string& text) {
  const bool onDevice = RunsOnDevice();
  if (!onDevice && !IsInstalling(SettingsGet(keys::kAdbOption))) return 1;
  if (!onDevice && SettingsGet(keys::kInstallDevices).empty()) {
    text = Message(messages::kNoDeviceSelected);
    return 0;
  }
  RefreshDevices(true);
  std::vector<DevicePair> devices;
  ReadDeviceList(devices);
  const std::vector<std::u16string> chosen = ChosenSerials();
  const bool all = std::all_of(chosen.begin(), chosen.end(), [&](const std::u16string& serial) {
    return IsAttached(devices, serial);
  });
  if (!all) text = Message(messages::kConnectionFailure);
  return all ? 1 : 0;
}

std::u16string InstallOption() {
  std::u16string option = SettingsGet(keys::kAdbOption);
  if (option.empty()) GetRegistryString(u"Last ADB Opt", option);
  return option;
}

bool PostPublishInstall(const std::u16string& packagePath, WindowHandle, std::u16string& errors) {
  if (!IsInstalling(InstallOption())) return true;
  Installation installation{packagePath, {}, DeviceToolPrefix()};
  CurrentDescriptor.GetText("id", installation.appId);
  if (PublishCancelled.load(std::memory_order_relaxed) != 0) return false;
  StartAdbServer();
  AdbServerStarted = true;
  const std::u16string selected = SettingsGet(keys::kInstallDevices);
  if (!RunsOnDevice() && selected.empty()) {
    errors += Message(messages::kNoDeviceSelected);
    return false;
  }
  ForwardDebugPort();
  if (UsesChosenDevice()) return installation.On(DebugDeviceSerial, errors);
  std::vector<std::u16string> serials;
  SplitColonList(selected, serials);
  return installation.OnAll(serials, errors);
}

bool InstallOnDevice(const std::u16string& packagePath, const std::u16string& appId,
                     const std::u16string& toolPrefix, const std::u16string& serial,
                     std::u16string& error) {
  constexpr std::int32_t kUnreachable = 15;
  const std::u16string target = u" -platform android -device " + serial;
  std::u16string output;
  const std::int32_t uninstalled =
      RunProcess(toolPrefix + u"-uninstallApp" + target + u" -appid " + appId, true, output);
  if (uninstalled == kUnreachable) {
    error = Message(messages::kDevicesNotConnected);
    return false;
  }
  output.clear();
  const std::int32_t installed = RunProcess(
      toolPrefix + u"-installApp" + target + u" -package \"" + packagePath + u"\"", true, output);
  if (installed != 0) {
    error = InstallError(installed, output);
    return false;
  }
  if (!SettingsEquals(keys::kAdbOption, u"launch")) return true;
  output.clear();
  if (RunProcess(toolPrefix + u"-launchApp" + target + u" -appid " + appId, true, output) == 0) {
    return true;
  }
  error = output;
  return false;
}

}  // namespace qutav
