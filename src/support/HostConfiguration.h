#pragma once

#include <string>

namespace qutav {

/// Where a file of the host's Android configuration lies. Each language of the host has its own
/// folder, and none stands in for another. Windows form.
std::u16string HostConfigurationFile(const std::u16string& name);

}  // namespace qutav
