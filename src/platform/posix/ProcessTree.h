// Ending processes the way `taskkill` does.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace qutav {

/// The children of a process that are still there, those included that have ended and were not
/// collected.
std::vector<pid_t> ChildrenOf(pid_t parent);

/// Kills a process and all that it has started, at whatever depth. Harmless for a pid that is gone.
void KillProcessTree(pid_t root);

/// Kills the trees of all of this user's processes whose program file has this name.
void KillProcessesNamed(const std::string& program);

}  // namespace qutav
