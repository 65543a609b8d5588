#include "support/RegistryStore.h"

#include <memory>
#include <set>

#include "platform/Services.h"
#include "platform/Text.h"

namespace qutav {
namespace {

// Bytes, terminator included: 511 units of a value, 129 of a list entry.
constexpr std::size_t kValueCapacity = 1024;
constexpr std::size_t kListEntryCapacity = 260;

std::unique_ptr<RegistryKey> OpenSettingsKey() {
  return TheServices().registry->OpenOrCreate(RegistrySettingsKeyPath());
}

std::unique_ptr<RegistryKey> OpenListKey(const std::u16string& subkey) {
  return TheServices().registry->OpenOrCreate(RegistrySettingsKeyPath() + u"\\" + subkey);
}

std::vector<std::u16string> EnumerateValues(RegistryKey& key) {
  std::vector<std::u16string> values;
  for (std::size_t i = 0;; ++i) {
    auto value = key.Enumerate(i, kListEntryCapacity);
    if (!value) return values;
    values.push_back(std::move(*value));
  }
}

}  // namespace

const std::u16string& RegistrySettingsKeyPath() {
  static const std::u16string path = u"Software\\Zenvoka\\Quorl ";
  return path;
}

void GetRegistryString(const std::u16string& name, std::u16string& value) {
  const auto key = OpenSettingsKey();
  if (key == nullptr) return;
  if (auto stored = key->Query(name, kValueCapacity)) value = std::move(*stored);
}

void SetRegistryString(const std::u16string& name, const std::u16string& value) {
  if (const auto key = OpenSettingsKey()) key->Set(name, value);
}

void GetRegistryFileList(const std::u16string& subkey, std::vector<std::u16string>& list) {
  const auto key = OpenListKey(subkey);
  if (key == nullptr) return;
  for (std::u16string& value : EnumerateValues(*key)) list.push_back(std::move(value));
}

void SaveRegistryFileList(const std::u16string& subkey, unsigned limit,
                          const std::vector<std::u16string>& list) {
  const auto key = OpenListKey(subkey);
  if (key == nullptr) return;
  const std::vector<std::u16string> stored = EnumerateValues(*key);
  const std::set<std::u16string> known(stored.begin(), stored.end());
  const std::size_t existing = stored.size();
  std::size_t added = 0;
  for (const std::u16string& item : list) {
    if (added > limit) return;
    if (known.contains(item)) continue;
    const std::size_t number = existing + added < limit ? existing + added + 1 : added + 1;
    key->Set(u"file" + ToDecimal(static_cast<std::int64_t>(number)), item);
    ++added;
  }
}

}  // namespace qutav
