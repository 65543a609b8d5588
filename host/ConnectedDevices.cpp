#include "host/ConnectedDevices.h"

#include <algorithm>
#include <cstddef>

namespace qutav::host {
namespace {

bool LooksLikeAddress(const std::u16string& text) {
  return text.find(u'.') != text.npos && text.find(u':') == text.npos;
}

bool LooksLikePort(const std::u16string& text) {
  constexpr std::size_t kMostDigits = 5;
  return text.size() <= kMostDigits &&
         std::all_of(text.begin(), text.end(), [](char16_t c) { return c >= u'0' && c <= u'9'; });
}

}  // namespace

std::vector<std::u16string> SerialsIn(const std::u16string& list) {
  std::vector<std::u16string> serials;
  std::size_t start = 0;
  for (std::size_t end = list.find(u':'); end != list.npos; end = list.find(u':', start)) {
    const std::u16string item = list.substr(start, end - start);
    start = end + 1;
    if (item.empty()) continue;
    if (!serials.empty() && LooksLikeAddress(serials.back()) && LooksLikePort(item)) {
      serials.back() += u":" + item;
    } else {
      serials.push_back(item);
    }
  }
  return serials;
}

std::u16string NetworkDeviceAmong(const std::vector<std::u16string>& serials) {
  const auto found = std::find_if(serials.begin(), serials.end(), [](const std::u16string& serial) {
    return serial.find(u':') != serial.npos;
  });
  return found != serials.end() ? *found : u"";
}

bool ConnectedDevices::Update(const std::u16string& platform,
                              const std::vector<std::u16string>& serials) {
  std::vector<std::u16string>& known = serials_[platform];
  if (known == serials) return false;
  known = serials;
  return true;
}

std::optional<std::u16string> ConnectedDevices::Selected(const std::u16string& platform) const {
  if (!chosen_.empty()) return chosen_;
  const auto found = serials_.find(platform);
  if (found == serials_.end() || found->second.empty()) return std::nullopt;
  return found->second.front();
}

}  // namespace qutav::host
