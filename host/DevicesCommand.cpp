#include "host/DevicesCommand.h"

#include "host/CallChecks.h"
#include "host/ExitCodes.h"
#include "host/FrontEndSetup.h"
#include "host/LibraryCall.h"
#include "host/LibraryRun.h"

namespace qutav::host {

int RunDevices(const DevicesOptions& options, Console& console) {
  const Document document = Document::Load(options.common.document);
  if (TellProblems(FindCallProblems(options, document), console)) return kRefused;
  const FrontEndSetup frontEnd(options);
  LibraryRun library(options, frontEnd.Transcript(), console);
  library.Print(DeviceListScript(options.common, document));
  if (library.WasRefused()) return kRefused;
  return library.Succeeded() ? kDone : kNotDone;
}

}  // namespace qutav::host
