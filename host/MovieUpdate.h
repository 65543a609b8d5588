#pragma once

#include "host/CommandLine.h"
#include "host/Console.h"
#include "host/Document.h"

namespace qutav::host {

/// Exports the movie where it is missing or older than the document, unless the options say no. A
/// failure is told on the console and gives false.
bool BringMovieUpToDate(const CallOptions& options, const Document& document, Console& console);

}  // namespace qutav::host
