#pragma once

#include <string>
#include <vector>

#include "host/ChildProcess.h"
#include "host/CommandLine.h"
#include "host/Document.h"

namespace qutav::host {

/// The arguments with which the command calls the library's `Publish` in a process of its own.
/// The library ends its whole host when it cannot start a program; what watches over the run has
/// to survive that.
std::vector<std::string> PublishCallArguments(const CommonOptions& options,
                                              const Document& document);

/// What to tell of a process that the library ended; empty for an ordinary end.
std::string UnexpectedEndText(const ChildEnd& end);

}  // namespace qutav::host
