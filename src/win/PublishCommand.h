#pragma once

#include <cstdint>
#include <string>

#include "win/HostEnvironment.h"

namespace qutav {

/// The debug port of the next run. The host's entry sets it to 7936.
extern std::int32_t DebugPort;
inline constexpr std::int32_t kFirstDebugPort = 7936;

/// The body of Publish, TestOnDevice and DebugOnDevice; `CommandName` is "publish", "testOnDevice"
/// or "debugOnDevice" in any case. Always 1: a failure was shown and never reaches the host.
std::int32_t RunPublishCommand(const HostCallContext& call, const HostValue* arguments,
                               const std::u16string& CommandName);

}  // namespace qutav
