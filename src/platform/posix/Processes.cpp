#include "platform/Processes.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/Text.h"
#include "platform/posix/CommandLine.h"
#include "platform/posix/Path.h"
#include "platform/posix/ProcessTree.h"
#include "platform/posix/SystemServices.h"

extern char** environ;

namespace qutav {
namespace {

thread_local int lastError = 0;

class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Value() const { return value_; }
  bool Close() {
    const int value = std::exchange(value_, -1);
    return value < 0 || close(value) == 0;
  }

 private:
  int value_;
};

class PosixPipe final : public OutputPipe {
 public:
  PosixPipe(int readEnd, int writeEnd) : read_(readEnd), write_(writeEnd) {}

  bool CloseWriteEnd() override { return write_.Close(); }

  std::optional<std::size_t> BytesWaiting() override {
    int count = 0;
    if (ioctl(read_.Value(), FIONREAD, &count) != 0) return {};
    return static_cast<std::size_t>(count);
  }

  std::size_t Read(char* buffer, std::size_t size) override {
    const ssize_t count = read(read_.Value(), buffer, size);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
  }

  int WriteEnd() const { return write_.Value(); }

 private:
  Descriptor read_;
  Descriptor write_;
};

// Children whose handles were closed while they ran. They are collected at the next start, so that
// none stays behind as a zombie for longer than that.
class Orphans {
 public:
  void Add(pid_t pid) {
    const std::lock_guard lock(mutex_);
    pids_.push_back(pid);
  }
  void Collect() {
    const std::lock_guard lock(mutex_);
    std::erase_if(pids_, [](pid_t pid) { return waitpid(pid, nullptr, WNOHANG) != 0; });
  }

 private:
  std::mutex mutex_;
  std::vector<pid_t> pids_;
};

Orphans& TheOrphans() {
  static Orphans orphans;
  return orphans;
}

std::uint32_t ExitCodeFromStatus(int status) {
  constexpr std::uint32_t kKilledBySignal = 128;  // as shells tell it
  if (WIFEXITED(status)) return static_cast<std::uint32_t>(WEXITSTATUS(status));
  return kKilledBySignal + static_cast<std::uint32_t>(WTERMSIG(status));
}

// Somebody else in the host has collected the child, or the host ignores SIGCHLD. What is not known
// to have succeeded has not.
constexpr std::uint32_t kLostExitCode = 255;

class PosixChild final : public ChildProcess {
 public:
  explicit PosixChild(pid_t pid) : pid_(pid) {}
  ~PosixChild() override {
    if (ExitCode() == kStillActive) TheOrphans().Add(pid_);
  }
  PosixChild(const PosixChild&) = delete;
  PosixChild& operator=(const PosixChild&) = delete;

  std::uint32_t Id() const override { return static_cast<std::uint32_t>(pid_); }

  std::uint32_t ExitCode() override {
    CollectStatus(WNOHANG);
    return exitCode_;
  }

  void Wait() override { CollectStatus(0); }

 private:
  void CollectStatus(int options) {
    if (exitCode_ != kStillActive) return;
    int status = 0;
    pid_t collected = 0;
    do {
      collected = waitpid(pid_, &status, options);
    } while (collected < 0 && errno == EINTR);
    if (collected == pid_) exitCode_ = ExitCodeFromStatus(status);
    if (collected < 0) exitCode_ = kLostExitCode;
  }

  pid_t pid_;
  std::uint32_t exitCode_ = kStillActive;
};

// A `taskkill` that has done its work.
class EndedChild final : public ChildProcess {
 public:
  std::uint32_t Id() const override { return 0; }
  std::uint32_t ExitCode() override { return 0; }
  void Wait() override {}
};

void CarryOutTaskkill(const std::vector<std::u16string>& arguments) {
  for (std::size_t i = 1; i + 1 < arguments.size(); ++i) {
    const std::string value = ToUtf8(arguments[i + 1]);
    if (arguments[i] == u"/PID") KillProcessTree(std::atoi(value.c_str()));
    if (arguments[i] == u"/IM") KillProcessesNamed(value.substr(0, value.rfind(".exe")));
  }
}

// As on Windows, the name of a program may hold blanks without being quoted: the shortest beginning
// of the line that is a file is meant.
std::u16string WithQuotedProgram(const std::u16string& line) {
  if (line.starts_with(u'"')) return line;
  std::error_code unreadable;
  for (std::size_t blank = line.find(u' '); blank != line.npos;
       blank = line.find(u' ', blank + 1)) {
    const std::u16string name = line.substr(0, blank);
    if (name.find_first_of(u"/\\") == name.npos) continue;
    if (std::filesystem::is_regular_file(NativePath(name), unreadable)) {
      return u"\"" + name + u"\"" + line.substr(blank);
    }
  }
  return line;
}

std::vector<std::string> NativeArguments(const std::vector<std::u16string>& arguments) {
  std::vector<std::string> native{NativePath(arguments.front())};
  std::transform(arguments.begin() + 1, arguments.end(), std::back_inserter(native),
                 [](const std::u16string& argument) { return ToUtf8(argument); });
  return native;
}

// Standard handles of a child; a group of its own keeps the terminal's interrupts from it.
class SpawnPlan {
 public:
  explicit SpawnPlan(const PosixPipe* output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawnattr_init(&attributes_);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
      if (output != nullptr) {
        posix_spawn_file_actions_adddup2(&actions_, output->WriteEnd(), stream);
      } else {
        posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", O_WRONLY, 0);
      }
    }
    posix_spawnattr_setpgroup(&attributes_, 0);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP);
  }
  ~SpawnPlan() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;

  int Spawn(std::vector<std::string> arguments, pid_t& pid) {
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return posix_spawnp(&pid, pointers[0], &actions_, &attributes_, pointers.data(), environ);
  }

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

class PosixProcesses final : public Processes {
 public:
  std::unique_ptr<OutputPipe> CreateOutputPipe() override {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return nullptr;
    return std::make_unique<PosixPipe>(ends[0], ends[1]);
  }

  std::unique_ptr<ChildProcess> Start(const std::u16string& commandLine,
                                      OutputPipe* output) override {
    TheOrphans().Collect();
    const std::vector<std::u16string> arguments = SplitCommandLine(WithQuotedProgram(commandLine));
    if (arguments.front() == u"taskkill") {
      CarryOutTaskkill(arguments);
      return std::make_unique<EndedChild>();
    }
    pid_t pid = 0;
    SpawnPlan plan(static_cast<PosixPipe*>(output));
    lastError = plan.Spawn(NativeArguments(arguments), pid);
    if (lastError != 0) return nullptr;
    return std::make_unique<PosixChild>(pid);
  }

  SystemError LastError() override {
    const std::string text = std::generic_category().message(lastError);
    return {static_cast<std::uint32_t>(lastError), FromUtf8(text)};
  }

  // Other threads still run and use what static destructors would tear down.
  void EndThisProcess(std::uint32_t exitCode) override {
    std::fflush(nullptr);
    std::_Exit(static_cast<int>(exitCode));
  }

  std::u16string ProgramSuffix() const override { return {}; }

  char16_t HeadSeparator() const override { return u'/'; }
};

}  // namespace

Processes& SystemProcesses() {
  static PosixProcesses processes;
  return processes;
}

}  // namespace qutav
