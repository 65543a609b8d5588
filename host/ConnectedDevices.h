#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace qutav::host {

/// The serials of a list in which each ends in a colon. What looks like an address and a port is
/// the one serial of a device in the network, "127.0.0.1:5555", which the library takes for two.
std::vector<std::u16string> SerialsIn(const std::u16string& list);

/// The first serial that such a list cannot carry; empty when all are fine.
std::u16string NetworkDeviceAmong(const std::vector<std::u16string>& serials);

/// The devices that the library last reported, and the user's choice among them.
class ConnectedDevices {
 public:
  /// Takes the serials of a platform; true when they are others than before.
  bool Update(const std::u16string& platform, const std::vector<std::u16string>& serials);

  /// The user's choice among the devices of all platforms, by its serial.
  void Choose(const std::u16string& serial) { chosen_ = serial; }

  /// The chosen device, connected or not; without a choice the first connected one of the platform.
  std::optional<std::u16string> Selected(const std::u16string& platform) const;

 private:
  std::map<std::u16string, std::vector<std::u16string>> serials_;
  std::u16string chosen_;
};

}  // namespace qutav::host
