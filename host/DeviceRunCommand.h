#pragma once

#include "host/CommandLine.h"
#include "host/Console.h"

namespace qutav::host {

/// Packages the document for each device in turn, installs and starts it there. A device that fails
/// does not keep the others from their turn; a run that is cancelled does. Gives 0 when every
/// device has started the package, 1 when one has not, and 2 when something that was given is
/// wrong; throws Refusal when the document cannot be used.
int RunOnDevices(const DeviceRunOptions& options, Console& console);

}  // namespace qutav::host
