#include "host/PublishCommand.h"

#include <chrono>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "host/ChildProcess.h"
#include "host/ExitCodes.h"
#include "host/FrontEndSetup.h"
#include "host/LibraryCall.h"
#include "host/MovieFile.h"
#include "host/PackageReport.h"
#include "host/PackageSnapshot.h"
#include "host/ProcessState.h"
#include "host/PublishChecks.h"
#include "host/PublishRecord.h"
#include "host/RuntimeLevel.h"
#include "host/TranscriptTail.h"
#include "host/TranscriptText.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using Duration = std::chrono::duration<double>;

class PublishRun {
 public:
  PublishRun(const PublishOptions& options, const Document& document, Console& console)
      : options_(options), document_(document), console_(console) {}

  int Run() {
    const FrontEndSetup frontEnd(options_, IsForIos(document_));
    if (options_.exportsMovie && !BringMovieUpToDate()) return kNotDone;
    const auto start = std::chrono::steady_clock::now();
    const std::set<fs::path> folders = PackageFolders(document_);
    const PackageSnapshot before = TakeSnapshot(folders);
    const ChildEnd end = CallLibrary(frontEnd.Transcript());
    const Duration duration = std::chrono::steady_clock::now() - start;
    if (WasRefused(end)) return kRefused;
    return Report(end, PackagesMade(before, TakeSnapshot(folders)), duration);
  }

 private:
  bool BringMovieUpToDate() {
    if (!MovieIsOutdated(document_)) return true;
    const fs::path movie = document_.MoviePath();
    const auto level = MajorOfRuntimeLevel(options_.common.runtimeLevel).value_or(0);
    const std::error_code error = ExportMovie(document_, level, movie);
    if (error) {
      console_.Message("The movie cannot be exported: " + movie.string() + ": " + error.message());
    }
    return !error;
  }

  // Shows the events as they come and keeps what the outcome is worked out from.
  ChildEnd CallLibrary(const fs::path& transcript) {
    TranscriptTail tail(transcript, [this](const nlohmann::json& event) {
      record_.Take(event);
      const std::string text = ReadableEvent(event);
      const std::string progress = ProgressText(event);
      if (!text.empty()) console_.Message(text);
      if (!progress.empty()) console_.Progress(progress);
    });
    const bool running = options_.executable.empty();
    const ChildEnd end = RunToEnd(running ? ExecutableFile() : options_.executable,
                                  PublishCallArguments(options_.common, document_));
    tail.Finish();
    console_.EndProgress();
    return end;
  }

  // The library's own code may be the same number, but it is shown in a message before.
  bool WasRefused(const ChildEnd& end) const {
    return end.kind == ChildEnd::Kind::kExited && end.number == kRefused && record_.IsEmpty();
  }

  int Report(const ChildEnd& end, const std::vector<fs::path>& packages, Duration duration) {
    const std::string unexpected = UnexpectedEndText(end);
    if (!unexpected.empty()) console_.Message(unexpected);
    if (!options_.certificate.empty() && !record_.SheetOpened()) {
      console_.Message("The certificate was not used: the library did not ask for one.");
    }
    if (packages.empty() || !record_.PackagingEnded()) {
      console_.Message(NothingMadeText(record_));
      return kNotDone;
    }
    for (const fs::path& package : packages) console_.Result(MadeText(package, duration));
    return kDone;
  }

  const PublishOptions& options_;
  const Document& document_;
  Console& console_;
  PublishRecord record_;
};

}  // namespace

int RunPublish(const PublishOptions& options, Console& console) {
  const Document document = Document::Load(options.common.document);
  const std::vector<std::string> problems = FindPublishProblems(options, document);
  for (const std::string& problem : problems) console.Message(problem);
  if (!problems.empty()) return kRefused;
  return PublishRun(options, document, console).Run();
}

}  // namespace qutav::host
