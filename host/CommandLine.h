#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <variant>
#include <vector>

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

/// What every command takes that calls one of the library's functions.
struct CallOptions {
  CommonOptions common;
  /// This command, which is started once more to call the library. Empty: the running one.
  std::filesystem::path executable;
  std::filesystem::path script;
  std::filesystem::path transcript;
  bool exportsMovie = true;
};

struct PublishOptions : CallOptions {
  std::filesystem::path certificate;
  std::string passwordVariable;
  std::filesystem::path passwordFile;
  std::filesystem::path provisioningProfile;
};

/// A run in the debug launcher.
struct LaunchOptions : CallOptions {
  bool debugs = false;
  /// The profile that the movie runs under; none for the desktop.
  std::optional<std::string> profile;
};

struct DevicesOptions : CallOptions {};

/// The settings sheet, with changes of the form PAGE.LABEL=VALUE.
struct SettingsOptions : CallOptions {
  std::vector<std::string> set;
  /// The value is in the environment variable, or in the file, of that name.
  std::vector<std::string> setFromEnvironment;
  std::vector<std::string> setFromFile;
};

/// Runs on devices, one after the other.
struct DeviceRunOptions : PublishOptions {
  bool debugs = false;
  /// Serials; empty for the first device that is connected.
  std::vector<std::string> devices;
};

struct EvaluateOptions {
  CommonOptions common;
  std::string script;
  /// The device that scripts find selected; empty for the first one that is connected.
  std::string device;
  bool quiet = false;
  /// The script runs in this very process, which the library may end.
  bool inside = false;
};

/// The command ends here: help was shown, or the line was refused.
struct ExitRequest {
  int exitCode = 0;
};

using CommandRequest = std::variant<PublishOptions, LaunchOptions, DevicesOptions, DeviceRunOptions,
                                    EvaluateOptions, SettingsOptions, ExitRequest>;

/// Reads the command line and makes its paths absolute; help goes to `out`, a complaint to
/// `error`.
CommandRequest ParseCommandLine(int count, const char* const* arguments, std::ostream& out,
                                std::ostream& error);

}  // namespace qutav::host
