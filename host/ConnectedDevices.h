#pragma once

#include <map>
#include <optional>
#include <string>

namespace qutav::host {

/// The devices that the library last reported, and the user's choice among them.
class ConnectedDevices {
 public:
  /// Takes a list whose every serial ends in a colon.
  void Update(const std::u16string& platform, const std::u16string& serials);

  /// The user's choice among the devices of all platforms, by its serial.
  void Choose(const std::u16string& serial) { chosen_ = serial; }

  /// The chosen device, connected or not; without a choice the first connected one of the platform.
  std::optional<std::u16string> Selected(const std::u16string& platform) const;

 private:
  std::map<std::u16string, std::u16string> serials_;
  std::u16string chosen_;
};

}  // namespace qutav::host
