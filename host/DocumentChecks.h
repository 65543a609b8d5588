#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace qutav::host {

/// Everything in a parsed document file that the host cannot work with, one sentence each.
std::vector<std::string> FindDocumentProblems(const nlohmann::ordered_json& content);

}  // namespace qutav::host
