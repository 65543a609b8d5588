// The host's simulator controller and the debug launchers.
#pragma once

#include <cstdint>
#include <string>

#include "win/HostEnvironment.h"

namespace qutav {

/// The port of the latest run; the runs cycle through 7836 to 7845.
extern std::int32_t SimulatorPort;

/// The next port of the cycle.
void AdvanceSimulatorPort();

/// Kills all debug launchers. Always true.
bool KillDebugLaunchers();

/// The controller's path; empty when there is none.
std::u16string FindSimulatorController();

/// Starts it in the host's language on `SimulatorPort` and gives it a second; false when it cannot
/// be started.
bool StartSimulatorController(const HostCallContext& call, const std::u16string& path,
                              const std::u16string& switches, std::uint32_t& processId);

}  // namespace qutav
