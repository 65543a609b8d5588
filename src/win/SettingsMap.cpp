#include "win/SettingsMap.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Text.h"
#include "win/SettingsKeys.h"

namespace qutav {
namespace {

struct StickyKey {
  const char16_t* key;
  const char16_t* rememberMark;  // kept only when this one is "true"; null: always
};

constexpr std::array<StickyKey, 15> kStickyKeys = {{
    {keys::kRememberPassword, nullptr},
    {keys::kCertificatePassword, keys::kRememberPassword},
    {keys::kCertificatePath, nullptr},
    {keys::kTimestamp, nullptr},
    {keys::kUrl, nullptr},
    {keys::kServerUrl, nullptr},
    {keys::kIpaRememberPassword, nullptr},
    {keys::kIpaCertificatePassword, keys::kIpaRememberPassword},
    {keys::kIpaCertificatePath, nullptr},
    {keys::kIpaProvisioningProfile, nullptr},
    {keys::kAdbPath, nullptr},
    {keys::kAdbOption, nullptr},
    {keys::kInstallDevices, nullptr},
    {keys::kDeviceSerials, nullptr},
    {keys::kDeviceStates, nullptr},
}};

}  // namespace

SettingsTexts SettingsMap;

std::u16string SettingsGet(const std::u16string& key) { return SettingsMap[key]; }

bool SettingsGetText(const char16_t* key, std::u16string& buffer) {
  if (key == nullptr) return false;
  const std::u16string& value = SettingsMap[key];
  if (value.empty()) return false;
  buffer = value;
  return true;
}

bool SettingsSet(const char16_t* key, const char16_t* value) {
  if (key == nullptr && value == nullptr) return false;
  SettingsMap[key == nullptr ? u"" : key] = value == nullptr ? u"" : value;
  return true;
}

bool SettingsSet(const std::u16string& key, const std::u16string& value) {
  SettingsMap[key] = value;
  return true;
}

bool SettingsRemove(const char16_t* key) {
  if (key == nullptr) return false;
  SettingsMap.erase(key);
  return true;
}

bool SettingsEquals(const std::u16string& key, std::u16string_view value) {
  return SettingsMap[key] == value;
}

void ResetSettings() {
  SettingsTexts kept;
  for (const StickyKey& sticky : kStickyKeys) {
    const bool keep =
        sticky.rememberMark == nullptr || SettingsEquals(sticky.rememberMark, u"true");
    if (keep) kept[sticky.key] = SettingsGet(sticky.key);
  }
  SettingsMap = std::move(kept);
}

int IncludedItemCount(const std::u16string& count) {
  constexpr int kMostIncludedItems = 65536;
  return std::min(ParseDecimal(count), kMostIncludedItems);
}

void ClearIncludedItems() {
  const int count = IncludedItemCount(SettingsGet(keys::kIncludedCount));
  for (int i = 0; i < count; ++i) SettingsRemove(keys::kIncludedItem + ToDecimal(i));
}

}  // namespace qutav
