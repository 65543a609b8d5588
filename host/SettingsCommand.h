#pragma once

#include "host/CommandLine.h"
#include "host/Console.h"

namespace qutav::host {

/// Shows every page of the settings sheet as a table, with the changes made that the options ask
/// for. Gives 0 when the sheet was shown and took all changes, 1 when not, and 2 when something
/// that was given is wrong; throws Refusal when the document or a change cannot be used.
int RunSettings(const SettingsOptions& options, Console& console);

}  // namespace qutav::host
