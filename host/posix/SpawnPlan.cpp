#include "host/posix/SpawnPlan.h"

#include <system_error>

extern char** environ;

namespace qutav::host {

SpawnPlan::SpawnPlan() {
  posix_spawn_file_actions_init(&actions_);
  posix_spawnattr_init(&attributes_);
}

SpawnPlan::~SpawnPlan() {
  posix_spawnattr_destroy(&attributes_);
  posix_spawn_file_actions_destroy(&actions_);
}

void SpawnPlan::Open(int descriptor, const char* file, int flags) {
  posix_spawn_file_actions_addopen(&actions_, descriptor, file, flags, 0);
}

void SpawnPlan::Duplicate(int from, int to) {
  posix_spawn_file_actions_adddup2(&actions_, from, to);
}

void SpawnPlan::Block(const sigset_t& signals) {
  posix_spawnattr_setsigmask(&attributes_, &signals);
  posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK);
}

pid_t SpawnPlan::Start(const std::filesystem::path& program,
                       const std::vector<std::string>& arguments) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  pid_t child = 0;
  const int error =
      posix_spawn(&child, program.c_str(), &actions_, &attributes_, words.data(), environ);
  if (error != 0) throw std::system_error(error, std::generic_category(), program.native());
  return child;
}

}  // namespace qutav::host
