#include "host/LaunchCommand.h"

#include <optional>
#include <string>

#include "host/CallChecks.h"
#include "host/DebugLauncher.h"
#include "host/ExitCodes.h"
#include "host/FrontEndSetup.h"
#include "host/LibraryCall.h"
#include "host/LibraryRun.h"
#include "host/MovieUpdate.h"

namespace qutav::host {
namespace {

int Report(const std::optional<ChildEnd>& launcher, Console& console) {
  if (!launcher) {
    console.Message("The launcher was not started.");
    return kNotDone;
  }
  const std::string number = std::to_string(launcher->number);
  if (launcher->kind == ChildEnd::Kind::kKilled) {
    console.Message("The launcher was ended by signal " + number + ".");
    return kNotDone;
  }
  if (launcher->number != 0) {
    console.Message("The launcher ended with code " + number + ".");
    return kNotDone;
  }
  console.Result("The launcher has ended.");
  return kDone;
}

}  // namespace

int RunLaunch(const LaunchOptions& options, Console& console) {
  const Document document = Document::Load(options.common.document);
  if (TellProblems(FindCallProblems(options, document), console)) return kRefused;
  const FrontEndSetup frontEnd(options);
  if (!BringMovieUpToDate(options, document, console)) return kNotDone;
  LibraryRun library(options, frontEnd.Transcript(), console);
  library.Run(LaunchScript(options, document));
  if (library.WasRefused()) return kRefused;
  const std::optional<ChildEnd> launcher = library.Family().WaitForProgram(kDebugLauncherName);
  // A simulator controller is of no use without its launcher.
  library.Family().EndAll();
  return Report(launcher, console);
}

}  // namespace qutav::host
