#pragma once

#include <string>
#include <vector>

#include "host/CommandLine.h"
#include "host/Document.h"
#include "host/ProcessFamily.h"

namespace qutav::host {

/// The scripts by which the command calls the library's functions.
std::string PublishScript(const CommonOptions& options, const Document& document);

/// `TestMovie`, or `DebugMovie` for a run under the debugger.
std::string LaunchScript(const LaunchOptions& options, const Document& document);

/// Opens the settings sheet.
std::string SettingsScript(const CommonOptions& options, const Document& document);

/// Gives the serials, one per line; throws when there is none.
std::string DeviceListScript(const CommonOptions& options, const Document& document);

/// A run on the selected device. Lists the devices before where none was chosen, and opens the
/// settings for the certificate where one was given.
std::string DeviceRunScript(const DeviceRunOptions& options, const Document& document);

/// The arguments with which the command runs a script in a process of its own. The library ends its
/// whole host when it cannot start a program; what watches over the run has to survive that.
std::vector<std::string> EvaluateArguments(const EvaluateOptions& options);

/// What to tell of a process that the library ended; empty for an ordinary end.
std::string UnexpectedEndText(const ChildEnd& end);

}  // namespace qutav::host
