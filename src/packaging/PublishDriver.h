#pragma once

#include <string>
#include <vector>

#include "packaging/PublishTarget.h"

namespace qutav {

/// Included files that the latest run did not find.
extern std::vector<std::u16string> MissingIncludedFiles;

/// Turns the current document's settings into one run of the packaging tool behind a modal progress
/// dialog and tells the user what came of it. `exportFirst` exports the movie through the host
/// before that. Returns 1 when the package was made and installed as far as that was wanted, else
/// 0; a warning of the tool does not spoil it.
int PublishDriver(int target, bool exportFirst);

}  // namespace qutav
