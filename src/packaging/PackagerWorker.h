#pragma once

#include <cstdint>
#include <string>

#include "platform/FrontEnd.h"
#include "support/ProcessRunner.h"

namespace qutav {

/// What the driver and its worker thread share for one attempt. Only `finished` may be touched by
/// both while the worker runs; joining the thread publishes the rest.
struct PackagerJob {
  std::u16string folder;  ///< the movie's folder
  std::u16string output;  ///< what the tool printed, or why the install step failed
  std::u16string commandLine;
  PolledByte finished{0};     ///< stop request and mark of completion in one
  std::int32_t exitCode = 0;  ///< the tool's, or -1 when the install step failed
  unsigned char postPublishOk = 0;
  WindowHandle parentWindow = nullptr;
};

/// The thread procedure: runs the tool, then the steps on devices, and sets `finished` last. Always
/// 0.
int PackagerWorker(PackagerJob& job);

}  // namespace qutav
