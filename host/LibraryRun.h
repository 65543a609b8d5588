#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/CommandLine.h"
#include "host/Console.h"
#include "host/Document.h"
#include "host/ProcessFamily.h"
#include "host/PublishRecord.h"

namespace qutav::host {

/// A script that calls the library, in a process of its own. What the library shows appears on the
/// console as it comes. Options, document and console outlive it.
class LibraryRun {
 public:
  /// `transcript` is where the library's front end writes.
  LibraryRun(const CallOptions& options, const Document& document, std::filesystem::path transcript,
             Console& console);

  /// Runs the script to its end; `further` are options of "evaluate". An end that was not the
  /// script's own is told.
  void Run(const std::string& script, const std::vector<std::string>& further, ChildOutput output);

  /// The script ran to its end.
  bool Succeeded() const;

  /// The process refused what it was given before the library showed anything.
  bool WasRefused() const;

  /// What was shown.
  const PublishRecord& Record() const { return record_; }

  /// The process with all that it has left running.
  ProcessFamily& Family() { return family_; }

 private:
  void Show(const nlohmann::json& event);

  const CallOptions& options_;
  const Document& document_;
  std::filesystem::path transcript_;
  Console& console_;
  ProcessFamily family_;
  PublishRecord record_;
  ChildEnd end_;
};

}  // namespace qutav::host
