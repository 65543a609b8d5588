// The current user's settings hive.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace qutav {

/// One open key. Values are strings and keep the order in which they were first written.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;
  /// The string under a name (`RegQueryValueExW`); nothing when it is missing or needs, with its
  /// terminator, more than `capacity` bytes.
  virtual std::optional<std::u16string> Query(const std::u16string& name, std::size_t capacity) = 0;
  /// The data of the value at an index (`RegEnumValueW`), under the same rule.
  virtual std::optional<std::u16string> Enumerate(std::size_t index, std::size_t capacity) = 0;
  /// Writes a string value (`RegSetValueExW` with REG_SZ); failures are silent.
  virtual void Set(const std::u16string& name, const std::u16string& value) = 0;
};

class Registry {
 public:
  virtual ~Registry() = default;
  /// Opens the key below the current user's hive, or creates it (`RegCreateKeyExW`); null when
  /// neither can be done. Destroying the key closes it.
  virtual std::unique_ptr<RegistryKey> OpenOrCreate(const std::u16string& path) = 0;
};

}  // namespace qutav
