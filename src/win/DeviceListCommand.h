#pragma once

#include <cstdint>

#include "win/HostEnvironment.h"

namespace qutav {

/// The body of GetConnectedDevices: lists the devices and tells the host. Always 1.
std::int32_t RunDeviceListCommand(const HostCallContext& call, const HostValue* arguments);

}  // namespace qutav
