#pragma once

#include <cstdint>

#include "win/HostEnvironment.h"

namespace qutav {

/// The body of DebugMovie: a run under the host's debugger or none at all.
std::int32_t RunDebugMovie(const HostCallContext& call, const HostValue* arguments);

}  // namespace qutav
