// The process-wide store of what the user chose for the document and what commands pass each other.
#pragma once

#include <map>
#include <string>

namespace qutav {

/// Ordered by UTF-16 unit; an empty value means not set. The script thread owns it; the packaging
/// worker reads it while the script thread waits.
using SettingsTexts = std::map<std::u16string, std::u16string>;
extern SettingsTexts SettingsMap;

/// The value of a key. A missing key is created empty.
std::u16string SettingsGet(const std::u16string& key);

/// Copies a value that has text to `buffer` and returns true; an empty value, like a null key,
/// gives false and leaves the buffer alone.
bool SettingsGetText(const char16_t* key, std::u16string& buffer);

/// Replaces or adds a value; a null stands for an empty text. False, and nothing done, only when
/// both are null.
bool SettingsSet(const char16_t* key, const char16_t* value);
bool SettingsSet(const std::u16string& key, const std::u16string& value);

/// Erases a key; false for null.
bool SettingsRemove(const char16_t* key);
inline bool SettingsRemove(const std::u16string& key) { return SettingsRemove(key.c_str()); }

/// Whether a key holds exactly this text; a missing key is created empty.
bool SettingsEquals(const std::u16string& key, std::u16string_view value);

/// Empties the map but for the keys that carry signing and device choices from command to command;
/// a password stays only when its remember mark is "true".
void ResetSettings();

/// How many included items a count stands for: its integer value, and no more than any document
/// has, so that a damaged one cannot hold the host for hours.
int IncludedItemCount(const std::u16string& count);

/// Erases the included items that the count tells of; the count itself stays.
void ClearIncludedItems();

}  // namespace qutav
