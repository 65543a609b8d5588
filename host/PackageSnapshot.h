#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <vector>

#include "host/Document.h"
#include "host/FileStamp.h"

namespace qutav::host {

using PackageSnapshot = std::map<std::filesystem::path, FileStamp>;

/// The folders in which the document's package can come to lie: the movie's own and those of
/// the stored destinations.
std::set<std::filesystem::path> PackageFolders(const Document& document);

/// Every package directly in the folders, by the ending of its name.
PackageSnapshot TakeSnapshot(const std::set<std::filesystem::path>& folders);

/// The packages that are new or changed and whole: a tool that was stopped leaves a file which
/// its archive's directory is missing from.
std::vector<std::filesystem::path> PackagesMade(const PackageSnapshot& before,
                                                const PackageSnapshot& after);

}  // namespace qutav::host
