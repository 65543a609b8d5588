#pragma once

#include <cstdint>

#include "win/HostEnvironment.h"

namespace qutav {

/// The body of OpenSettingDialog: 0 only when no default descriptor could be generated.
std::int32_t RunSettingsCommand(const HostCallContext& call, const HostValue* arguments);

}  // namespace qutav
