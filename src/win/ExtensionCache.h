// The native extension packages that the document uses, and the flat folder from which the
// packaging tool takes them.
#pragma once

#include <string>
#include <vector>

namespace qutav {

extern std::vector<std::u16string> ExtensionFilePaths;  ///< where each package lies
extern std::vector<std::u16string> ExtensionFileNames;  ///< base name + ".zux", in the same order
extern std::u16string ExtensionCacheFolder;  ///< ends in a backslash; empty without packages

/// Finds the packages named in the document's external library path; true for at least one. What
/// does not exist is passed over in silence.
bool ScanExternalLibraryPath();

/// The extension id that the host stored for a package; false without one.
bool ExtensionIdFor(const std::u16string& fileName, std::u16string& target);

/// The folder to which the host unpacked the packages, forward slashes; false without one.
bool UnzippedExtensionFolder(std::u16string& target);

/// Copies the packages to the cache folder; 1 when there was something to copy. A failed copy is
/// not reported.
int CopyExtensionsToPackagingFolder();

/// Deletes the copies and their folder.
void RemoveExtensionsFromPackagingFolder();

/// Copies of the cache folder and the file names, when both are there.
bool GetExtensionList(std::u16string& folder, std::vector<std::u16string>& names);

}  // namespace qutav
