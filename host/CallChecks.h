#pragma once

#include <string>
#include <vector>

#include "host/CommandLine.h"
#include "host/Console.h"
#include "host/Document.h"

namespace qutav::host {

/// Everything that would keep a command from beginning, one sentence each with its remedy.
std::vector<std::string> FindCallProblems(const CallOptions& options, const Document& document);
std::vector<std::string> FindPublishProblems(const PublishOptions& options,
                                             const Document& document);
std::vector<std::string> FindDeviceRunProblems(const DeviceRunOptions& options,
                                               const Document& document);

/// Tells them on the console; true when there are any.
bool TellProblems(const std::vector<std::string>& problems, Console& console);

/// Whether the document is published for iOS.
bool IsForIos(const Document& document);

}  // namespace qutav::host
