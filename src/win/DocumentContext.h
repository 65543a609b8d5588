#pragma once

#include "win/HostEnvironment.h"

namespace qutav {

/// The first step of every command: fills `DocumentPaths` from the arguments, refills the settings
/// and finds the document's native extensions. False when the command cannot go on; what there is
/// to tell has been shown.
bool PrepareDocumentContext(const HostCallContext& call, HostValue document, HostValue movie,
                            HostValue version);

}  // namespace qutav
