#include "host/ConnectedDevices.h"

#include <cstddef>

namespace qutav::host {

void ConnectedDevices::Update(const std::u16string& platform, const std::u16string& serials) {
  serials_[platform] = serials;
}

std::optional<std::u16string> ConnectedDevices::Selected(const std::u16string& platform) const {
  if (!chosen_.empty()) return chosen_;
  const auto found = serials_.find(platform);
  if (found == serials_.end()) return std::nullopt;
  const std::size_t end = found->second.find(u':');
  if (end == std::u16string::npos || end == 0) return std::nullopt;
  return found->second.substr(0, end);
}

}  // namespace qutav::host
