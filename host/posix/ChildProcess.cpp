#include "host/ChildProcess.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "host/posix/SignalCleanup.h"

extern char** environ;

namespace qutav::host {
namespace {

class OutputToError {
 public:
  OutputToError() {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_adddup2(&actions_, STDERR_FILENO, STDOUT_FILENO);
  }
  ~OutputToError() { posix_spawn_file_actions_destroy(&actions_); }
  OutputToError(const OutputToError&) = delete;
  OutputToError& operator=(const OutputToError&) = delete;

  const posix_spawn_file_actions_t* Actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

pid_t Start(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  const OutputToError redirection;
  pid_t child = 0;
  const int error =
      posix_spawn(&child, program.c_str(), redirection.Actions(), nullptr, words.data(), environ);
  if (error != 0) throw std::system_error(error, std::generic_category(), program.native());
  return child;
}

}  // namespace

ChildEnd RunToEnd(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
  const pid_t child = Start(program, arguments);
  PassSignalsTo(child);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  PassSignalsTo(0);
  if (WIFSIGNALED(status)) return {ChildEnd::Kind::kKilled, WTERMSIG(status)};
  return {ChildEnd::Kind::kExited, WEXITSTATUS(status)};
}

}  // namespace qutav::host
