#include "host/CommandLine.h"

#include <CLI/CLI.hpp>
#include <initializer_list>
#include <utility>

#include "host/ExitCodes.h"
#include "host/RuntimeLevel.h"

namespace qutav::host {
namespace {

const CLI::Validator kRuntimeLevel(
    [](std::string& level) {
      return MajorOfRuntimeLevel(level) ? std::string() : level + " is no runtime level like 26.0";
    },
    "");

void AddCommonOptions(CLI::App& command, CommonOptions& options) {
  command.add_option("DOCUMENT", options.document, "the document, a .qud.json file")
      ->type_name("FILE")
      ->required();
  command.add_option("--language", options.languageCode, "language of the interface")
      ->type_name("CODE")
      ->capture_default_str();
  command.add_option("--library", options.library, "the library, by default beside this command")
      ->type_name("FILE");
  command.add_flag("--verbose", options.verbose, "also tell about scripts that fail");
}

void AddSigningOptions(CLI::App& command, PublishOptions& options) {
  CLI::Option* certificate =
      command
          .add_option("--certificate", options.certificate, "keystore to sign with (.p12, .jks)")
          ->type_name("FILE");
  CLI::Option* variable = command
                              .add_option("--password-env", options.passwordVariable,
                                          "environment variable that holds the keystore's password")
                              ->type_name("NAME")
                              ->needs(certificate);
  command
      .add_option("--password-file", options.passwordFile,
                  "file that holds the keystore's password")
      ->type_name("FILE")
      ->needs(certificate)
      ->excludes(variable);
  command
      .add_option("--provisioning-profile", options.provisioningProfile,
                  "provisioning profile for iOS")
      ->type_name("FILE")
      ->needs(certificate);
  command.add_option("--script", options.script, "answers for the library's dialogs, a JSON file")
      ->type_name("FILE")
      ->excludes(certificate);
}

void AddPublishOptions(CLI::App& command, PublishOptions& options) {
  AddCommonOptions(command, options.common);
  command.add_option("--version", options.common.runtimeLevel, "runtime level, such as 26.0")
      ->type_name("LEVEL")
      ->required()
      ->check(kRuntimeLevel);
  AddSigningOptions(command, options);
  command
      .add_option("--transcript", options.transcript,
                  "file to which everything that is shown is appended")
      ->type_name("FILE")
      ->envname("QUTAV_TRANSCRIPT");
  command.add_flag_callback(
      "--no-export", [&options] { options.exportsMovie = false; },
      "do not export a movie that is missing or older than the document");
}

void AddEvaluateOptions(CLI::App& command, EvaluateOptions& options) {
  AddCommonOptions(command, options.common);
  command.add_option("SCRIPT-TEXT", options.script, "the script")->required();
  command.add_flag("--quiet", options.quiet, "do not print the result");
  options.common.runtimeLevel = "26.0";
  command.add_option("--version", options.common.runtimeLevel, "runtime level of exported movies")
      ->type_name("LEVEL")
      ->capture_default_str()
      ->check(kRuntimeLevel);
}

// The command works in the movie's folder, so that no path may stay relative to ours.
void MakeAbsolute(std::initializer_list<std::filesystem::path*> paths) {
  for (std::filesystem::path* path : paths) {
    if (!path->empty()) *path = std::filesystem::absolute(*path).lexically_normal();
  }
}

CommandRequest Absolute(PublishOptions options) {
  MakeAbsolute({&options.common.document, &options.common.library, &options.certificate,
                &options.passwordFile, &options.provisioningProfile, &options.script,
                &options.transcript});
  return options;
}

CommandRequest Absolute(EvaluateOptions options) {
  MakeAbsolute({&options.common.document, &options.common.library});
  return options;
}

}  // namespace

CommandRequest ParseCommandLine(int count, const char* const* arguments, std::ostream& out,
                                std::ostream& error) {
  CLI::App app("Publishes a document as the authoring application does.", "qutav");
  app.require_subcommand(1);
  PublishOptions publish;
  EvaluateOptions evaluate;
  CLI::App* publishCommand = app.add_subcommand("publish", "make a package from a document");
  CLI::App* evaluateCommand = app.add_subcommand("evaluate", "run a script in the host's engine");
  AddPublishOptions(*publishCommand, publish);
  AddEvaluateOptions(*evaluateCommand, evaluate);
  try {
    app.parse(count, arguments);
  } catch (const CLI::ParseError& problem) {
    return ExitRequest{app.exit(problem, out, error) == 0 ? kDone : kRefused};
  }
  if (publishCommand->parsed()) return Absolute(std::move(publish));
  return Absolute(std::move(evaluate));
}

}  // namespace qutav::host
