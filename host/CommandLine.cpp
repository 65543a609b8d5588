#include "host/CommandLine.h"

#include <CLI/CLI.hpp>
#include <initializer_list>
#include <utility>

#include "host/ExitCodes.h"
#include "host/RuntimeLevel.h"
#include "platform/Environment.h"
#include "platform/Utf8Path.h"

namespace qutav::host {
namespace {

const CLI::Validator kRuntimeLevel(
    [](std::string& level) {
      return MajorOfRuntimeLevel(level) ? std::string() : level + " is no runtime level like 26.0";
    },
    "");

CLI::Option* AddPathOption(CLI::App& command, const std::string& name,
                           std::filesystem::path& target, const std::string& description) {
  return command
      .add_option_function<std::string>(
          name, [&target](const std::string& text) { target = PathFromUtf8(text); }, description)
      ->type_name("FILE");
}

void AddCommonOptions(CLI::App& command, CommonOptions& options) {
  AddPathOption(command, "DOCUMENT", options.document, "the document, a .qud.json file")
      ->required();
  command.add_option("--language", options.languageCode, "language of the interface")
      ->type_name("CODE")
      ->capture_default_str();
  AddPathOption(command, "--library", options.library,
                "the library, by default beside this command");
  command.add_flag("--verbose", options.verbose, "also tell about scripts that fail");
}

void AddRuntimeLevel(CLI::App& command, CommonOptions& options) {
  command.add_option("--version", options.runtimeLevel, "runtime level, such as 26.0")
      ->type_name("LEVEL")
      ->required()
      ->check(kRuntimeLevel);
}

CLI::Option* AddScript(CLI::App& command, CallOptions& options) {
  return AddPathOption(command, "--script", options.script,
                       "answers for the library's dialogs, a JSON file");
}

void AddCallOptions(CLI::App& command, CallOptions& options) {
  AddCommonOptions(command, options.common);
  AddRuntimeLevel(command, options.common);
  AddPathOption(command, "--transcript", options.transcript,
                "file to which everything that is shown is appended (Env:QUTAV_TRANSCRIPT)");
}

void AddNoExport(CLI::App& command, CallOptions& options) {
  command.add_flag_callback(
      "--no-export", [&options] { options.exportsMovie = false; },
      "do not export a movie that is missing or older than the document");
}

CLI::Option* AddCertificate(CLI::App& command, PublishOptions& options) {
  CLI::Option* certificate = AddPathOption(command, "--certificate", options.certificate,
                                           "keystore to sign with (.p12, .jks)");
  CLI::Option* variable = command
                              .add_option("--password-env", options.passwordVariable,
                                          "environment variable that holds the keystore's password")
                              ->type_name("NAME")
                              ->needs(certificate);
  AddPathOption(command, "--password-file", options.passwordFile,
                "file that holds the keystore's password")
      ->needs(certificate)
      ->excludes(variable);
  return certificate;
}

void AddPublishOptions(CLI::App& command, PublishOptions& options) {
  AddCallOptions(command, options);
  AddNoExport(command, options);
  CLI::Option* certificate = AddCertificate(command, options);
  AddPathOption(command, "--provisioning-profile", options.provisioningProfile,
                "provisioning profile for iOS")
      ->needs(certificate);
  AddScript(command, options)->excludes(certificate);
  command.footer(
      "Exit code: 0 a package was made, 1 none was made, 2 the command line or the document is "
      "wrong.");
}

void AddLaunchOptions(CLI::App& command, LaunchOptions& options, bool debugs) {
  options.debugs = debugs;
  AddCallOptions(command, options);
  AddNoExport(command, options);
  AddScript(command, options);
  command
      .add_option(
          "--profile", options.profile,
          "desktop (default), mobileDevice, extendedMobileDevice or another of the launcher")
      ->type_name("PROFILE");
  command.footer(
      "Runs until the launcher is closed; Ctrl-C closes it.\n"
      "Exit code: 0 the launcher ran and ended well, 1 it did not, 2 the command line or the "
      "document is wrong.");
}

void AddDevicesOptions(CLI::App& command, DevicesOptions& options) {
  AddCallOptions(command, options);
  command.footer(
      "Prints one serial per line.\n"
      "Exit code: 0 a device is connected, 1 none is, 2 the command line or the document is "
      "wrong.");
}

void AddSettingsOptions(CLI::App& command, SettingsOptions& options) {
  AddCallOptions(command, options);
  const auto add = [&](const char* name, std::vector<std::string>& values, const char* help,
                       const char* form) {
    command.add_option(name, values, help)->type_name(form)->allow_extra_args(false);
  };
  add("--set", options.set,
      "give a control a value, addressed as the table shows it; true or false for a switch; repeat "
      "it for several",
      "PAGE.LABEL=VALUE");
  add("--set-env", options.setFromEnvironment, "the value of an environment variable",
      "PAGE.LABEL=NAME");
  add("--set-file", options.setFromFile, "the text of a file", "PAGE.LABEL=FILE");
  command.footer(
      "Shows every page of the settings sheet. With changes the sheet is left by OK, which stores "
      "them.\n"
      "Exit code: 0 the sheet was shown and took all changes, 1 it was not or did not, 2 the "
      "command "
      "line or the document is wrong.");
}

void AddDeviceRunOptions(CLI::App& command, DeviceRunOptions& options, bool debugs) {
  options.debugs = debugs;
  AddCallOptions(command, options);
  AddScript(command, options)->excludes(AddCertificate(command, options));
  command
      .add_option("--device", options.devices,
                  "serial of a device, as \"devices\" prints it; repeat it for several, by default "
                  "the first one that is connected")
      ->type_name("SERIAL")
      ->allow_extra_args(false);
  command.footer(
      "Exit code: 0 every device has the package and started it, without a warning; 1 one has not; "
      "2 the command line or the document is wrong.");
}

void AddEvaluateOptions(CLI::App& command, EvaluateOptions& options) {
  AddCommonOptions(command, options.common);
  command.add_option("SCRIPT-TEXT", options.script, "the script")->required();
  command.add_flag("--quiet", options.quiet, "do not print the result");
  command.add_flag("--inside", options.inside, "run the script in this very process")->group("");
  command
      .add_option("--device", options.device,
                  "serial of the device that scripts find selected, by default the first one")
      ->type_name("SERIAL");
  options.common.runtimeLevel = "26.0";
  command.add_option("--version", options.common.runtimeLevel, "runtime level of exported movies")
      ->type_name("LEVEL")
      ->capture_default_str()
      ->check(kRuntimeLevel);
  command.footer(
      "Exit code: 0 the script ran to its end, 1 it threw, 2 the command line or the document is "
      "wrong.");
}

// The command works in the movie's folder, so that no path may stay relative to ours.
void MakeAbsolute(std::initializer_list<std::filesystem::path*> paths) {
  for (std::filesystem::path* path : paths) {
    if (!path->empty()) *path = std::filesystem::absolute(*path).lexically_normal();
  }
}

void MakePathsAbsolute(CommonOptions& options) {
  MakeAbsolute({&options.document, &options.library});
}

void MakePathsAbsolute(CallOptions& options) {
  MakePathsAbsolute(options.common);
  if (options.transcript.empty()) {
    options.transcript = PathFromUtf8(EnvironmentText("QUTAV_TRANSCRIPT").value_or(""));
  }
  MakeAbsolute({&options.script, &options.transcript});
}

void MakePathsAbsolute(PublishOptions& options) {
  MakePathsAbsolute(static_cast<CallOptions&>(options));
  MakeAbsolute({&options.certificate, &options.passwordFile, &options.provisioningProfile});
}

void MakePathsAbsolute(EvaluateOptions& options) { MakePathsAbsolute(options.common); }

// The subcommands in the order in which help lists them, each with what it has read.
class Subcommands {
 public:
  explicit Subcommands(CLI::App& app) {
    AddPublishOptions(*app.add_subcommand("publish", "make a package from a document"), publish_);
    CLI::App* test = app.add_subcommand("test", "run the movie in the debug launcher");
    AddLaunchOptions(*test, test_, false);
    CLI::App* debug = app.add_subcommand("debug", "run it there under the debugger");
    AddLaunchOptions(*debug, debug_, true);
    AddDevicesOptions(*app.add_subcommand("devices", "list the connected devices"), devices_);
    AddSettingsOptions(*app.add_subcommand("settings", "show and change the document's settings"),
                       settings_);
    CLI::App* testOnDevice =
        app.add_subcommand("test-on-device", "package, install and start on devices");
    AddDeviceRunOptions(*testOnDevice, testOnDevice_, false);
    CLI::App* debugOnDevice =
        app.add_subcommand("debug-on-device", "the same, with a package that can be debugged");
    AddDeviceRunOptions(*debugOnDevice, debugOnDevice_, true);
    AddEvaluateOptions(*app.add_subcommand("evaluate", "run a script in the host's engine"),
                       evaluate_);
  }

  CommandRequest Request(const std::string& name) {
    if (name == "publish") return Absolute(publish_);
    if (name == "test") return Absolute(test_);
    if (name == "debug") return Absolute(debug_);
    if (name == "devices") return Absolute(devices_);
    if (name == "settings") return Absolute(settings_);
    if (name == "test-on-device") return Absolute(testOnDevice_);
    if (name == "debug-on-device") return Absolute(debugOnDevice_);
    return Absolute(evaluate_);
  }

 private:
  template <typename Options>
  static CommandRequest Absolute(Options& options) {
    MakePathsAbsolute(options);
    return options;
  }

  PublishOptions publish_;
  LaunchOptions test_;
  LaunchOptions debug_;
  DevicesOptions devices_;
  SettingsOptions settings_;
  DeviceRunOptions testOnDevice_;
  DeviceRunOptions debugOnDevice_;
  EvaluateOptions evaluate_;
};

}  // namespace

CommandRequest ParseCommandLine(int count, const char* const* arguments, std::ostream& out,
                                std::ostream& error) {
  CLI::App app("Publishes and tries out a document as the authoring application does.", "qutav");
  app.require_subcommand(1);
  Subcommands subcommands(app);
  try {
    app.parse(count, arguments);
  } catch (const CLI::ParseError& problem) {
    return ExitRequest{app.exit(problem, out, error) == 0 ? kDone : kRefused};
  }
  return subcommands.Request(app.get_subcommands().front()->get_name());
}

}  // namespace qutav::host
