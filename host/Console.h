#pragma once

#include <mutex>
#include <ostream>
#include <string>

namespace qutav::host {

/// The command's standard output and standard error, safe to use from several threads. On a
/// terminal one progress line stands below the messages.
class Console {
 public:
  Console(std::ostream& out, std::ostream& error, bool showsProgress);
  ~Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  /// A line of the command's result.
  void Result(const std::string& line);

  /// A line for the user.
  void Message(const std::string& line);

  /// A line that only --verbose shows.
  void Detail(const std::string& line);
  void SetVerbose(bool verbose) { verbose_ = verbose; }

  /// Replaces the progress line; nothing happens where there is no terminal.
  void Progress(const std::string& text);
  void EndProgress();

 private:
  void ClearProgressLine();

  std::mutex mutex_;
  std::ostream& out_;
  std::ostream& error_;
  bool showsProgress_;
  bool progressStands_ = false;
  bool verbose_ = false;
};

}  // namespace qutav::host
