// The one command line of the packaging tool. Its exact text, blanks included, is the contract with
// the tool. Values are inserted as they stand, without escaping.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "packaging/PublishTarget.h"

namespace qutav {

/// What the assembly needs beside the settings.
struct PackagerInputs {
  PublishTarget target = PublishTargetApk;
  std::u16string digitalSign;  ///< the registry value: "sign", "prepare" or empty
  std::u16string runtimeType;  ///< "embed" when the runtime level forces it
  std::u16string password;
};

/// The launcher, the tool and a blank behind.
std::u16string PackagerHead();

/// The target and signing section.
std::u16string TargetAndSigning(const PackagerInputs& inputs);

/// Works out where the package goes; nothing when it cannot go there. The application's name serves
/// when no destination is set, and is then stored as the destination.
std::optional<std::u16string> PackageDestination(PublishTarget target,
                                                 const std::u16string& applicationName);

/// Descriptor, movie and images.
std::u16string PackagedContent(const std::u16string& destination,
                               const std::vector<std::u16string>& images);

/// The included files and folders that exist; the others are appended to `missing`.
std::u16string IncludedItems(std::vector<std::u16string>& missing);

/// The native extensions option for a folder.
std::u16string ExtensionOption(const std::u16string& folder);

/// Whether a package can be written to a path: it exists, or the folder before its last slash does.
bool DestinationUsable(const std::u16string& path);

}  // namespace qutav
