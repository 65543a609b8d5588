#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <variant>

namespace qutav::host {

/// What every subcommand takes.
struct CommonOptions {
  std::filesystem::path document;
  std::string runtimeLevel;
  std::string languageCode = "en_US";
  /// Empty: the library beside the executable.
  std::filesystem::path library;
  bool verbose = false;
};

struct PublishOptions {
  CommonOptions common;
  /// This command, which is started once more to call the library. Empty: the running one.
  std::filesystem::path executable;
  std::filesystem::path certificate;
  std::string passwordVariable;
  std::filesystem::path passwordFile;
  std::filesystem::path provisioningProfile;
  std::filesystem::path script;
  std::filesystem::path transcript;
  bool exportsMovie = true;
};

struct EvaluateOptions {
  CommonOptions common;
  std::string script;
  bool quiet = false;
};

/// The command ends here: help was shown, or the line was refused.
struct ExitRequest {
  int exitCode = 0;
};

using CommandRequest = std::variant<PublishOptions, EvaluateOptions, ExitRequest>;

/// Reads the command line and makes its paths absolute; help goes to `out`, a complaint to
/// `error`.
CommandRequest ParseCommandLine(int count, const char* const* arguments, std::ostream& out,
                                std::ostream& error);

}  // namespace qutav::host
