#include "host/ProcessFamily.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>

#include "host/posix/SpawnPlan.h"
#include "platform/posix/ProcessTree.h"

namespace qutav::host {
namespace {

std::string ProgramOf(pid_t pid) {
  std::ifstream stream("/proc/" + std::to_string(pid) + "/comm");
  std::string name;
  std::getline(stream, name);
  return name;
}

ChildEnd EndOf(int status) {
  if (WIFSIGNALED(status)) return {ChildEnd::Kind::kKilled, WTERMSIG(status)};
  return {ChildEnd::Kind::kExited, WEXITSTATUS(status)};
}

// A signal that our caller told us to ignore stays ignored.
void AddUnlessIgnored(sigset_t& signals, int number) {
  struct sigaction present = {};
  sigaction(number, nullptr, &present);
  if (present.sa_handler != SIG_IGN) sigaddset(&signals, number);
}

}  // namespace

// A member whose parent has ended becomes our own child, so that none is lost. The signals are
// blocked and waited for: ending a family is more than a signal handler may do.
class ProcessFamily::Members {
 public:
  Members() {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    sigemptyset(&awaited_);
    sigaddset(&awaited_, SIGCHLD);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) AddUnlessIgnored(awaited_, number);
    pthread_sigmask(SIG_BLOCK, &awaited_, &before_);
  }
  ~Members() {
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    prctl(PR_SET_CHILD_SUBREAPER, 0);
  }
  Members(const Members&) = delete;
  Members& operator=(const Members&) = delete;

  ChildEnd Run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
               ChildOutput output) {
    SpawnPlan plan;
    plan.Block(before_);
    if (output == ChildOutput::kToStandardError) plan.Duplicate(STDERR_FILENO, STDOUT_FILENO);
    const pid_t child = plan.Start(program, arguments);
    while (true) {
      CollectEnded();
      const auto ended = std::find_if(ended_.begin(), ended_.end(),
                                      [child](const Ended& member) { return member.pid == child; });
      if (ended != ended_.end()) return ended->end;
      AwaitSignal();
    }
  }

  std::optional<ChildEnd> WaitForProgram(const std::string& name) {
    for (CollectEnded(); IsRunning(name); CollectEnded()) AwaitSignal();
    const auto last = std::find_if(ended_.rbegin(), ended_.rend(),
                                   [&](const Ended& member) { return member.program == name; });
    if (last == ended_.rend()) return {};
    return last->end;
  }

  // Whoever is orphaned by the killing becomes a child of ours in the next round.
  static void EndAll() {
    const pid_t self = getpid();
    for (auto children = ChildrenOf(self); !children.empty(); children = ChildrenOf(self)) {
      for (const pid_t child : children) KillProcessTree(child);
      for (const pid_t child : children) waitpid(child, nullptr, 0);
    }
  }

 private:
  struct Ended {
    pid_t pid;
    std::string program;
    ChildEnd end;
  };

  void CollectEnded() {
    siginfo_t info = {};
    while (waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid != 0) {
      const std::string program = ProgramOf(info.si_pid);
      int status = 0;
      waitpid(info.si_pid, &status, 0);
      ended_.push_back({info.si_pid, program, EndOf(status)});
      info = {};
    }
  }

  static bool IsRunning(const std::string& name) {
    const std::vector<pid_t> children = ChildrenOf(getpid());
    return std::any_of(children.begin(), children.end(),
                       [&](pid_t child) { return ProgramOf(child) == name; });
  }

  // Does not come back from one that ends us.
  void AwaitSignal() const {
    const int number = sigwaitinfo(&awaited_, nullptr);
    if (number < 0 || number == SIGCHLD) return;
    EndAll();
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    raise(number);
  }

  sigset_t awaited_{};
  sigset_t before_{};
  std::vector<Ended> ended_;
};

ProcessFamily::ProcessFamily() : members_(std::make_unique<Members>()) {}

ProcessFamily::~ProcessFamily() = default;

ChildEnd ProcessFamily::Run(const std::filesystem::path& program,
                            const std::vector<std::string>& arguments, ChildOutput output) {
  return members_->Run(program, arguments, output);
}

std::optional<ChildEnd> ProcessFamily::WaitForProgram(const std::string& name) {
  return members_->WaitForProgram(name);
}

void ProcessFamily::EndAll() { Members::EndAll(); }

}  // namespace qutav::host
