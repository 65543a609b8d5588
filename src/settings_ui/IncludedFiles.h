// The list of what goes into the package, as the General pages show it: the movie, its descriptor,
// the native extension packages, and behind them the user's own files and folders. The pages differ
// in which rows they guard and what they store.
#pragma once

#include <string>
#include <vector>

#include "framework/ListBox.h"

namespace qutav {

/// How many rows the movie and its descriptor take.
inline constexpr int kMovieRows = 2;

/// The rows of the native extension packages.
std::vector<std::u16string> ExtensionRows();

/// Adds all rows from the settings.
void FillIncludedFiles(ListBox& list);

/// Adds a file that the user chooses, named from the movie's folder where it lies below it. The
/// dialog starts in `startFolder`, or where it likes for an empty one. False when it was cancelled
/// and for a file that is in the list.
bool AddIncludedFile(ListBox& list, const std::u16string& startFolder);

/// The same for a folder, which may be in the list already.
bool AddIncludedFolder(ListBox& list);

/// Deletes the selected row if it stands behind the guarded ones. True when any row was selected,
/// also a guarded one: the pages take that for a change.
bool DeleteIncludedRow(ListBox& list, int guardedRows);

/// Puts a row into the settings as the item of that number.
void StoreIncludedItem(int number, const std::u16string& row);

}  // namespace qutav
