#pragma once

#include "host/CommandLine.h"
#include "host/Console.h"

namespace qutav::host {

/// Runs a script with the document open and prints its result. Gives 0, or 1 when the script
/// throws; throws Refusal when the document or the library cannot be used.
int RunEvaluate(const EvaluateOptions& options, Console& console);

}  // namespace qutav::host
