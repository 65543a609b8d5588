#pragma once

#include <string>

#include "platform/FrontEnd.h"

namespace qutav {

/// Lets the user choose a folder (`SHBrowseForFolderW`).
struct FolderChooser {
  /// What `Browse` gives.
  static constexpr int kCancelled = 0;
  static constexpr int kNoPath = 1;
  static constexpr int kChosen = 2;

  /// `flags`: a dialog that can be resized (`BIF_NEWDIALOGSTYLE`).
  static constexpr unsigned kNewDialogStyle = 64;

  unsigned flags = 0;  ///< the system's BIF_ flags
  std::u16string title;

  /// `kChosen` with the folder's path in `outPath`, no slash at its end; `kNoPath`, and `outPath`
  /// as it was, for a folder that has none. Without an `outPath` shows nothing: `kNoPath`.
  int Browse(WindowHandle owner, std::u16string* outPath) const;
};

}  // namespace qutav
