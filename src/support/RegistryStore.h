// The few things that outlive a document, kept under one key of the user's registry hive. Failures
// are silent, and even a read creates a missing key.
#pragma once

#include <string>
#include <vector>

namespace qutav {

/// The key below the user's hive; the blank at its end belongs to it.
const std::u16string& RegistrySettingsKeyPath();

/// Reads a value of at most 511 units; `value` stays as it was when it is missing or longer.
void GetRegistryString(const std::u16string& name, std::u16string& value);

void SetRegistryString(const std::u16string& name, const std::u16string& value);

/// Appends the values of a list subkey in the order of enumeration, up to the first one of more
/// than 129 units.
void GetRegistryFileList(const std::u16string& subkey, std::vector<std::u16string>& list);

/// Adds the items that the subkey does not hold yet as "file1", "file2" and so on. Once `limit`
/// values are there, new items overwrite from the start.
void SaveRegistryFileList(const std::u16string& subkey, unsigned limit,
                          const std::vector<std::u16string>& list);

}  // namespace qutav
