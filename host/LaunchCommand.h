#pragma once

#include "host/CommandLine.h"
#include "host/Console.h"

namespace qutav::host {

/// Runs the document's movie in the debug launcher and waits until the author closes it. Gives 0
/// when the launcher ended well, 1 when it did not or could not be started, and 2 when something
/// that was given is wrong; throws Refusal when the document cannot be used.
int RunLaunch(const LaunchOptions& options, Console& console);

}  // namespace qutav::host
