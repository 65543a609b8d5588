#pragma once

#include <optional>
#include <string>

namespace qutav {

/// A variable of this process's environment in UTF-8; nothing when it is not set.
std::optional<std::string> EnvironmentText(const std::string& name);

}  // namespace qutav
