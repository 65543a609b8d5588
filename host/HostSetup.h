#pragma once

#include <filesystem>

#include "host/CommandLine.h"
#include "host/Console.h"
#include "host/Document.h"
#include "host/HostObjects.h"
#include "host/HostSession.h"

namespace qutav::host {

/// The state in which a command's scripts run. Document and console outlive it.
HostState MakeHostState(const CommonOptions& options, Document& document, Console& console);

/// Works in the movie's folder from now on: relative destinations and included files mean that
/// folder, wherever the command was started. A folder that is missing is the library's to tell.
void EnterMovieFolder(const Document& document);

/// The library that was asked for, or the one beside the executable.
std::filesystem::path LibraryFile(const CommonOptions& options);

/// Loads the library and lets it define its functions; throws LibraryError.
void EnterLibrary(HostSession& session, const CommonOptions& options);

/// Stores a changed document; a failure is told on the console and leaves the file as it was.
bool SaveDocument(Document& document, Console& console);

}  // namespace qutav::host
