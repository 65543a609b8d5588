#pragma once

#include <system_error>

namespace qutav::host {

/// The error that the last system call left.
std::error_code LastSystemError();

}  // namespace qutav::host
