// Android devices, through the packaging tool and the Android Debug Bridge.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FrontEnd.h"

namespace qutav {

/// The adb server was started once. Never cleared.
extern bool AdbServerStarted;
/// The device list was fetched at least once.
extern bool DeviceListFetched;
/// The device that the host's user chose for a run on a device.
extern std::u16string DebugDeviceSerial;

/// Serial and state of a device.
using DevicePair = std::pair<std::u16string, std::u16string>;

/// Devices of a listing as adb and the tool print it.
std::vector<DevicePair> ParseDeviceListing(const std::u16string& output);

/// Lists the attached devices into the settings; true for at least one. The first listing starts
/// the adb server and waits 5 seconds for it. A failure leaves the settings as they were.
bool ListDevices();

/// Lists them and tells the host, once, or again when forced.
void RefreshDevices(bool force);

/// The devices of the settings; true when there are any.
bool ReadDeviceList(std::vector<DevicePair>& out);

/// Appends the items of a list in which each is ended by ":"; what follows the last is dropped. The
/// size of `out`.
int SplitColonList(std::u16string_view text, std::vector<std::u16string>& out);

/// 1 when a publish may go on as far as its devices are concerned, else 0 and why in `text`.
int CheckSelectedDevices(std::u16string& text);

/// What happens to a package after its publish: "install", "launch" or something else for nothing.
/// The settings' choice, or where they have none the one that the user's registry remembers.
std::u16string InstallOption();

/// Installs and launches the package where the settings ask for it; on the worker thread. False
/// when it was cancelled or failed; `errors` then holds a block per failed device.
bool PostPublishInstall(const std::u16string& packagePath, WindowHandle window,
                        std::u16string& errors);

/// Replaces the application on one device and launches it where that is wanted.
bool InstallOnDevice(const std::u16string& packagePath, const std::u16string& appId,
                     const std::u16string& toolPrefix, const std::u16string& serial,
                     std::u16string& error);

}  // namespace qutav
