#pragma once

#include "host/CommandLine.h"
#include "host/Console.h"

namespace qutav::host {

/// Publishes a document as its author would and tells the package on the console. The library is
/// called in a process of its own. Gives 0 when a package was made, 1 when none was, and 2 when
/// something that was given is wrong; throws Refusal when the document cannot be used.
int RunPublish(const PublishOptions& options, Console& console);

}  // namespace qutav::host
