#include "host/Console.h"

namespace qutav::host {
namespace {

// Back to the first column and clear to the end of the line.
constexpr const char* kClearLine = "\r\x1b[K";

}  // namespace

Console::Console(std::ostream& out, std::ostream& error, bool showsProgress)
    : out_(out), error_(error), showsProgress_(showsProgress) {}

Console::~Console() { EndProgress(); }

void Console::Result(const std::string& line) {
  const std::lock_guard lock(mutex_);
  ClearProgressLine();
  out_ << line << '\n' << std::flush;
}

void Console::Message(const std::string& line) {
  const std::lock_guard lock(mutex_);
  ClearProgressLine();
  error_ << line << '\n' << std::flush;
}

void Console::Detail(const std::string& line) {
  if (verbose_) Message(line);
}

void Console::Progress(const std::string& text) {
  const std::lock_guard lock(mutex_);
  if (!showsProgress_) return;
  error_ << kClearLine << text << std::flush;
  progressStands_ = true;
}

void Console::EndProgress() {
  const std::lock_guard lock(mutex_);
  ClearProgressLine();
}

void Console::ClearProgressLine() {
  if (progressStands_) error_ << kClearLine << std::flush;
  progressStands_ = false;
}

}  // namespace qutav::host
