#pragma once

#include "host/CommandLine.h"
#include "host/Console.h"

namespace qutav::host {

/// Prints the serials of the connected devices. Gives 0 when there is one, 1 when there is none or
/// they cannot be listed, and 2 when something that was given is wrong; throws Refusal when the
/// document cannot be used.
int RunDevices(const DevicesOptions& options, Console& console);

}  // namespace qutav::host
