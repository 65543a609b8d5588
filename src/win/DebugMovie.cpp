#include "win/DebugMovie.h"

#include "packaging/DescriptorGenerator.h"
#include "support/ProcessRunner.h"
#include "win/DocumentChecks.h"
#include "win/DocumentContext.h"
#include "win/HostScript.h"
#include "win/LaunchCall.h"
#include "win/SimulatorController.h"

namespace qutav {
std::int32_t RunDebugMovie(const HostCallContext& call, const HostValue* arguments) {
  KillDebugLaunchers();
  if (!PrepareDocumentContext(call, arguments[0], arguments[1], arguments[2])) return 1;
  const CommandProfileText profile = HostTextOrNull(call, arguments[3]);
  if (!HasOrRelocatesDescriptor(call) && GenerateDefaultDescriptor() == 0) return 0;
  UpdateExtensionIds();
  if (!OpenDescriptor()) return 1;
  const HostLaunch launch = BuildLaunchCall(call, profile, true);
  std::int32_t answer = 0;
  const std::int32_t status = EvaluateLaunch(call, launch, answer);
  if (answer != 0 && !launch.controller.empty()) KillProcessTreeOf(launch.controllerProcess);
  return status;
}

}  // namespace qutav
