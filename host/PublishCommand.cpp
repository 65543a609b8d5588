#include "host/PublishCommand.h"

#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "host/CallChecks.h"
#include "host/ExitCodes.h"
#include "host/FrontEndSetup.h"
#include "host/LibraryCall.h"
#include "host/LibraryRun.h"
#include "host/MovieUpdate.h"
#include "host/PackageReport.h"
#include "host/PackageSnapshot.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using Duration = std::chrono::duration<double>;

class PublishRun {
 public:
  PublishRun(const PublishOptions& options, const Document& document, Console& console)
      : options_(options), document_(document), console_(console) {}

  int Run() {
    const FrontEndSetup frontEnd(options_, IsForIos(document_), SheetUse::kPublish);
    if (!BringMovieUpToDate(options_, document_, console_)) return kNotDone;
    const auto start = std::chrono::steady_clock::now();
    const std::set<fs::path> folders = PackageFolders(document_);
    const PackageSnapshot before = TakeSnapshot(folders);
    LibraryRun library(options_, frontEnd.Transcript(), console_);
    library.Run(PublishScript(options_.common, document_));
    const Duration duration = std::chrono::steady_clock::now() - start;
    if (library.WasRefused()) return kRefused;
    return Report(library.Record(), PackagesMade(before, TakeSnapshot(folders)), duration);
  }

 private:
  int Report(const PublishRecord& record, const std::vector<fs::path>& packages,
             Duration duration) {
    if (!options_.certificate.empty() && !record.SheetOpened()) {
      console_.Message("The certificate was not used: the library did not ask for one.");
    }
    if (packages.empty() || !record.PackagingEnded()) {
      console_.Message(NothingMadeText(record));
      return kNotDone;
    }
    for (const fs::path& package : packages) console_.Result(MadeText(package, duration));
    return kDone;
  }

  const PublishOptions& options_;
  const Document& document_;
  Console& console_;
};

}  // namespace

int RunPublish(const PublishOptions& options, Console& console) {
  const Document document = Document::Load(options.common.document);
  if (TellProblems(FindPublishProblems(options, document), console)) return kRefused;
  return PublishRun(options, document, console).Run();
}

}  // namespace qutav::host
