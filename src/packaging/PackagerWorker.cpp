#include "packaging/PackagerWorker.h"

#include "packaging/DeviceBridge.h"
#include "platform/Services.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// The tool's own code for an error that nobody foresaw.
constexpr std::int32_t kUnexpectedError = 5;

std::u16string PackagePath(const PackagerJob& job) {
  const std::u16string destination = SettingsGet(keys::kTavDestination);
  return TheServices().files->IsRooted(destination) ? destination : job.folder + destination;
}

void InstallOnDevices(PackagerJob& job) {
  WindowHandle window = job.parentWindow;
  if (window == nullptr) window = TheServices().frontEnd->FocusWindow();
  std::u16string errors;
  try {
    if (PostPublishInstall(PackagePath(job), window, errors)) return;
  } catch (...) {  // the package stands; only its way to the devices has failed
    errors += Message(messages::kUnknownError);
  }
  job.postPublishOk = 0;
  job.exitCode = -1;
  job.output = errors;
}

}  // namespace

int PackagerWorker(PackagerJob& job) {
  try {
    job.exitCode = RunProcess(job.commandLine, true, job.output, &job.finished);
    job.postPublishOk = 1;
    if (job.exitCode == 0) InstallOnDevices(job);
  } catch (...) {  // an exception that leaves a thread ends the host
    job.exitCode = kUnexpectedError;
    job.postPublishOk = 1;
    job.output.clear();
  }
  job.finished.store(1, std::memory_order_relaxed);
  return 0;
}

}  // namespace qutav
