// How dialogs let a user choose an icon, and get it below the root content folder.
#pragma once

#include <optional>
#include <string>

namespace qutav {

/// Lets the user choose a PNG file; nothing when the dialog was cancelled.
std::optional<std::u16string> ChooseIconFile();

/// Whether a path counts as one below the root folder: it holds the folder's text, in the same
/// case, at any position.
bool IsBelowRoot(const std::u16string& path, const std::u16string& rootFolder);

/// Asks whether an icon from elsewhere may be copied below the root folder.
bool AskToCopyIcon();

/// Copies an icon to a folder below the root folder, over one of its name there, and returns its
/// new path. No failure is told.
std::u16string CopyIcon(const std::u16string& file, const std::u16string& rootFolder,
                        const std::u16string& folderName);

}  // namespace qutav
