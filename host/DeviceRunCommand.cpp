#include "host/DeviceRunCommand.h"

#include <chrono>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/CallChecks.h"
#include "host/ExitCodes.h"
#include "host/FrontEndSetup.h"
#include "host/LibraryCall.h"
#include "host/LibraryRun.h"
#include "host/PackageReport.h"
#include "host/PackageSnapshot.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using Duration = std::chrono::duration<double>;

class DeviceRun {
 public:
  DeviceRun(const DeviceRunOptions& options, const Document& document, fs::path transcript,
            Console& console)
      : options_(options),
        document_(document),
        transcript_(std::move(transcript)),
        console_(console) {}

  int Run() {
    // Without a name the host takes the first one that is connected.
    std::vector<std::string> devices = options_.devices;
    if (devices.empty()) devices.emplace_back();
    if (options_.debugs && devices.size() > 1) console_.Message(OneDebugPortText());
    int result = kDone;
    for (std::size_t i = 0; i < devices.size(); ++i) {
      if (devices.size() > 1) console_.Message(DeviceHeading(devices[i], i + 1, devices.size()));
      const int outcome = cancelled_ ? TellNotStarted(devices[i]) : RunOn(devices[i]);
      if (outcome == kRefused) return kRefused;
      if (outcome != kDone) result = kNotDone;
    }
    return result;
  }

 private:
  int RunOn(const std::string& device) {
    const auto start = std::chrono::steady_clock::now();
    const std::set<fs::path> folders = PackageFolders(document_);
    const PackageSnapshot before = TakeSnapshot(folders);
    LibraryRun library(options_, transcript_, console_);
    library.Run(DeviceRunScript(options_, document_), device);
    const Duration duration = std::chrono::steady_clock::now() - start;
    if (library.WasRefused()) return kRefused;
    cancelled_ = library.Record().CancelPressed();
    const std::vector<fs::path> packages = PackagesMade(before, TakeSnapshot(folders));
    // The one failure after packaging is shown in a warning, and so is the tool's own.
    if (packages.empty() || !library.Record().PackagingEnded() ||
        library.Record().WarnedAfterPackaging()) {
      return TellNotStarted(device);
    }
    console_.Result(StartedText(packages.front(), device, duration));
    return kDone;
  }

  int TellNotStarted(const std::string& device) {
    console_.Message(NotStartedText(device));
    return kNotDone;
  }

  const DeviceRunOptions& options_;
  const Document& document_;
  fs::path transcript_;
  Console& console_;
  bool cancelled_ = false;
};

}  // namespace

int RunOnDevices(const DeviceRunOptions& options, Console& console) {
  const Document document = Document::Load(options.common.document);
  if (TellProblems(FindDeviceRunProblems(options, document), console)) return kRefused;
  const FrontEndSetup frontEnd(options, false, SheetUse::kRemember);
  return DeviceRun(options, document, frontEnd.Transcript(), console).Run();
}

}  // namespace qutav::host
