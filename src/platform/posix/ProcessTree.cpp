#include "platform/posix/ProcessTree.h"

#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <vector>

namespace qutav {
namespace {

namespace fs = std::filesystem;

// pid to parent, of every process on the machine.
std::map<pid_t, pid_t> ParentsOfAll() {
  std::map<pid_t, pid_t> parents;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator("/proc", error)) {
    const std::string name = entry.path().filename();
    if (name.find_first_not_of("0123456789") != name.npos) continue;
    std::ifstream stream(entry.path() / "stat");
    std::string text;
    std::getline(stream, text);
    // The name in brackets may hold anything, brackets and blanks included: read behind the last.
    const std::size_t behindName = text.rfind(')');
    if (behindName == text.npos || behindName + 4 >= text.size()) continue;
    parents[static_cast<pid_t>(std::stol(name))] =
        static_cast<pid_t>(std::strtol(text.c_str() + behindName + 4, nullptr, 10));
  }
  return parents;
}

std::vector<pid_t> DescendantsOf(pid_t root) {
  const auto parents = ParentsOfAll();
  std::vector<pid_t> family{root};
  for (std::size_t i = 0; i < family.size(); ++i) {
    for (const auto& [pid, parent] : parents) {
      if (parent == family[i]) family.push_back(pid);
    }
  }
  return family;
}

bool BelongsToThisUser(pid_t pid) {
  struct stat status {};
  return stat(("/proc/" + std::to_string(pid)).c_str(), &status) == 0 && status.st_uid == getuid();
}

std::string ProgramOf(pid_t pid) {
  std::ifstream stream("/proc/" + std::to_string(pid) + "/cmdline", std::ios::binary);
  std::string program;
  std::getline(stream, program, '\0');
  return fs::path(program).filename();
}

}  // namespace

std::vector<pid_t> ChildrenOf(pid_t parent) {
  std::vector<pid_t> children;
  for (const auto& [pid, itsParent] : ParentsOfAll()) {
    if (itsParent == parent) children.push_back(pid);
  }
  return children;
}

void KillProcessTree(pid_t root) {
  if (root <= 1) return;
  // Stopped first, and looked for again until there is none that could have started another
  // meanwhile.
  std::vector<pid_t> family;
  for (std::vector<pid_t> found{root}; found != family; found = DescendantsOf(root)) {
    family = found;
    for (const pid_t pid : family) kill(pid, SIGSTOP);
  }
  for (const pid_t pid : family) kill(pid, SIGKILL);
  // A child that we started leads a group, in which those remain whose parent has ended before.
  if (getpgrp() != root) kill(-root, SIGKILL);
}

void KillProcessesNamed(const std::string& program) {
  for (const auto& [pid, parent] : ParentsOfAll()) {
    if (pid != getpid() && BelongsToThisUser(pid) && ProgramOf(pid) == program) {
      KillProcessTree(pid);
    }
  }
}

}  // namespace qutav
