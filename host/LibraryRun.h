#pragma once

#include <filesystem>
#include <string>

#include "host/CommandLine.h"
#include "host/Console.h"
#include "host/ProcessFamily.h"
#include "host/PublishRecord.h"

namespace qutav::host {

/// A script that calls the library, in a process of its own. What the library shows appears on the
/// console as it comes. Options and console outlive it.
class LibraryRun {
 public:
  /// `transcript` is where the library's front end writes.
  LibraryRun(const CallOptions& options, std::filesystem::path transcript, Console& console);

  /// Runs the script to its end with a device selected, or with the first one where that is empty.
  /// An end that was not the script's own is told.
  void Run(const std::string& script, const std::string& device = {});

  /// The same; the script's result is printed.
  void Print(const std::string& script);

  /// The script ran to its end.
  bool Succeeded() const;

  /// The process refused what it was given before the library showed anything.
  bool WasRefused() const;

  /// What was shown.
  const PublishRecord& Record() const { return record_; }

  /// The process with all that it has left running.
  ProcessFamily& Family() { return family_; }

 private:
  void Run(const EvaluateOptions& evaluation, ChildOutput output);
  void Show(const nlohmann::json& event);

  const CallOptions& options_;
  std::filesystem::path transcript_;
  Console& console_;
  ProcessFamily family_;
  PublishRecord record_;
  ChildEnd end_;
};

}  // namespace qutav::host
