#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qutav::host {

/// How a program ended.
struct ChildEnd {
  enum class Kind { kExited, kKilled };
  Kind kind = Kind::kExited;
  /// The exit code or the signal.
  int number = 0;
};

/// Where a child's standard output goes.
enum class ChildOutput { kToStandardError, kToStandardOutput };

/// The programs that this process runs, with all that they start at whatever depth. A signal that
/// ends this process ends the whole family before. One at a time, made before other threads are.
///
///     ProcessFamily family;
///     family.Run(tool, {"--quiet"}, ChildOutput::kToStandardError);
///     family.WaitForProgram("launcher");  // which the tool has left running
class ProcessFamily {
 public:
  ProcessFamily();
  /// Members that still run go on.
  ~ProcessFamily();
  ProcessFamily(const ProcessFamily&) = delete;
  ProcessFamily& operator=(const ProcessFamily&) = delete;

  /// Runs a program to its end; what it has started may go on. Throws std::system_error when it
  /// cannot be started.
  ChildEnd Run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
               ChildOutput output);

  /// Waits until nothing that a finished run has left behind is a program of this name. How the
  /// last one ended; nothing when there was none. Names are told apart by 15 characters.
  std::optional<ChildEnd> WaitForProgram(const std::string& name);

  /// Ends all members at once.
  void EndAll();

 private:
  class Members;
  std::unique_ptr<Members> members_;
};

}  // namespace qutav::host
