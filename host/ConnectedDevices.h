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

  /// The first connected device of the platform: a command has no list to choose from.
  std::optional<std::u16string> Selected(const std::u16string& platform) const;

 private:
  std::map<std::u16string, std::u16string> serials_;
};

}  // namespace qutav::host
