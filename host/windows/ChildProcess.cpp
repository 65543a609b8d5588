#include "host/ChildProcess.h"

#include "host/windows/SpawnPlan.h"

namespace qutav::host {

void StartProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
  const SuspendedProgram started = StartSuspended(program, arguments, STD_ERROR_HANDLE, false);
  ResumeThread(started.thread.Value());
}

}  // namespace qutav::host
