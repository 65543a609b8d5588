#include "host/ChildProcess.h"

#include <fcntl.h>
#include <unistd.h>

#include "host/posix/SpawnPlan.h"

namespace qutav::host {

void StartProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
  SpawnPlan plan;
  plan.Open(STDIN_FILENO, "/dev/null", O_RDONLY);
  plan.Duplicate(STDERR_FILENO, STDOUT_FILENO);
  plan.Start(program, arguments);
}

}  // namespace qutav::host
