// Child processes and the pipe that their output comes through.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace qutav {

/// The exit code that a process has while it runs (STILL_ACTIVE).
inline constexpr std::uint32_t kStillActive = 259;

/// An anonymous pipe; a child can be given its write end.
class OutputPipe {
 public:
  virtual ~OutputPipe() = default;
  /// Gives up this process's copy of the write end; false when the system refuses.
  virtual bool CloseWriteEnd() = 0;
  /// How many bytes can be read without blocking (`PeekNamedPipe`); nothing when the request fails.
  virtual std::optional<std::size_t> BytesWaiting() = 0;
  /// Reads up to `size` bytes; 0 at the end or after a failure.
  virtual std::size_t Read(char* buffer, std::size_t size) = 0;
};

/// A started process. Destroying it closes the handles and leaves the process alone.
class ChildProcess {
 public:
  virtual ~ChildProcess() = default;
  virtual std::uint32_t Id() const = 0;
  /// The exit code, or `kStillActive` while it runs (`GetExitCodeProcess`).
  virtual std::uint32_t ExitCode() = 0;
  /// Waits for its end without limit.
  virtual void Wait() = 0;
};

/// Why the system refused the latest call of this thread.
struct SystemError {
  std::uint32_t code = 0;
  std::u16string text;
};

class Processes {
 public:
  virtual ~Processes() = default;

  /// A pipe of the system's default size; null when there is none to be had (`CreatePipe`).
  virtual std::unique_ptr<OutputPipe> CreateOutputPipe() = 0;

  /// Starts a whole command line without a shell and without a console (`CreateProcessW`). Standard
  /// output and error go to `output`, or nowhere when it is null; standard input is empty. Null
  /// when it cannot be started; `LastError` then tells why. On POSIX the line is split as
  /// `CommandLineToArgvW` splits it, and `taskkill` lines are carried out by the service itself.
  virtual std::unique_ptr<ChildProcess> Start(const std::u16string& commandLine,
                                              OutputPipe* output) = 0;

  /// The error of the latest `Start` on this thread (`GetLastError`, `FormatMessageW`).
  virtual SystemError LastError() = 0;

  /// Ends this whole process (`ExitProcess`).
  [[noreturn]] virtual void EndThisProcess(std::uint32_t exitCode) = 0;

  /// What the system's programs end in: ".exe", or nothing on POSIX.
  virtual std::u16string ProgramSuffix() const = 0;

  /// The separator that stands in the head of a command line: a backslash where programs are named
  /// by it, else a slash.
  virtual char16_t HeadSeparator() const = 0;
};

}  // namespace qutav
