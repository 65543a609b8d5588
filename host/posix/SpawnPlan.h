#pragma once

#include <signal.h>
#include <spawn.h>
#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace qutav::host {

/// What a child is to find when it starts. What is not said it inherits.
class SpawnPlan {
 public:
  SpawnPlan();
  ~SpawnPlan();
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;

  void Open(int descriptor, const char* file, int flags);
  void Duplicate(int from, int to);

  /// The signals that the child does not take at once.
  void Block(const sigset_t& signals);

  /// Throws std::system_error when the program cannot be started.
  pid_t Start(const std::filesystem::path& program, const std::vector<std::string>& arguments);

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

}  // namespace qutav::host
