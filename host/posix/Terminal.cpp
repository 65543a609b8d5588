#include "host/Terminal.h"

#include <fcntl.h>
#include <signal.h>
#include <termios.h>
#include <unistd.h>

#include "host/posix/FileDescriptor.h"

namespace qutav::host {
namespace {

// Keeps a Ctrl-C waiting while the terminal is silent, so that it never stays silent.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t held;
    sigemptyset(&held);
    for (const int number : {SIGINT, SIGTERM, SIGTSTP, SIGHUP}) sigaddset(&held, number);
    sigprocmask(SIG_BLOCK, &held, &before_);
  }
  ~SignalsHeld() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;

 private:
  sigset_t before_;
};

class SilentTerminal {
 public:
  explicit SilentTerminal(int number) : number_(number) {
    silent_ = tcgetattr(number_, &before_) == 0;
    termios quiet = before_;
    quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    quiet.c_lflag |= ECHONL;
    silent_ = silent_ && tcsetattr(number_, TCSAFLUSH, &quiet) == 0;
  }
  ~SilentTerminal() {
    if (silent_) tcsetattr(number_, TCSAFLUSH, &before_);
  }
  SilentTerminal(const SilentTerminal&) = delete;
  SilentTerminal& operator=(const SilentTerminal&) = delete;

  bool IsSilent() const { return silent_; }

 private:
  int number_;
  bool silent_;
  termios before_ = {};
};

std::optional<std::string> ReadLine(int number) {
  std::string line;
  char c = 0;
  while (read(number, &c, 1) == 1) {
    if (c == '\n') return line;
    line += c;
  }
  return std::nullopt;
}

}  // namespace

bool StandardInputIsTerminal() { return isatty(STDIN_FILENO) == 1; }

bool StandardErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

void ShowUtf8() {}  // as terminals do

std::optional<std::string> ReadPassword(const std::string& prompt) {
  const FileDescriptor terminal(open("/dev/tty", O_RDWR | O_CLOEXEC));
  if (!terminal.IsOpen()) return std::nullopt;
  const SignalsHeld held;
  const SilentTerminal silent(terminal.Number());
  if (!silent.IsSilent() || terminal.Write(prompt)) return std::nullopt;
  return ReadLine(terminal.Number());
}

}  // namespace qutav::host
