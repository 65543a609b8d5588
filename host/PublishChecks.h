#pragma once

#include <string>
#include <vector>

#include "host/CommandLine.h"
#include "host/Document.h"

namespace qutav::host {

/// Everything that would keep a publish run from beginning, one sentence each with its remedy.
std::vector<std::string> FindPublishProblems(const PublishOptions& options,
                                             const Document& document);

/// Whether the document is published for iOS.
bool IsForIos(const Document& document);

}  // namespace qutav::host
