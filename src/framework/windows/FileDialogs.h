// The system's dialogs in which a user chooses a file or a folder.
#pragma once

#include <optional>
#include <string>

#include "platform/FrontEnd.h"

namespace qutav {

/// Shows the dialog (`GetOpenFileNameW`, `GetSaveFileNameW`) and returns the full path of what was
/// chosen; nothing when it was cancelled, or could not be shown. A file that is to be saved may
/// exist: whether it may be replaced is the caller's question. The current directory stays.
std::optional<std::u16string> ShowFileDialog(const FileDialogRequest& request);

/// The same for a folder (`SHBrowseForFolderW`). An empty text: one was chosen that has no path.
std::optional<std::u16string> ShowFolderDialog(const FolderDialogRequest& request);

}  // namespace qutav
