// Combo boxes that offer files used before: the rows are paths, and what counts is the typed text.
#pragma once

#include <string>

#include "framework/ComboBox.h"

namespace qutav {

/// Shows a path. Adds it as a row, with the caret at the end of the text, unless a row begins with
/// it, whatever the case. True when it was added.
bool AddPathToCombo(ComboBox& combo, const std::u16string& path);

/// Adds the paths of a registry list whose files still exist, each unless a row begins with it.
void AddRecentFiles(ComboBox& combo, const std::u16string& registryList);

/// Selects the first row that begins with a path, with its slashes turned to backslashes; the first
/// of all rows for an empty path or when none begins with it.
void SelectRecentFile(ComboBox& combo, const std::u16string& path);

/// Saves the rows in a registry list that keeps ten, of which one save may write eleven; a combo
/// without rows changes nothing.
void SaveRecentFiles(const ComboBox& combo, const std::u16string& registryList);

}  // namespace qutav
