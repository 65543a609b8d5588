#include "support/ProcessRunner.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>

#include "platform/Services.h"
#include "platform/Text.h"

namespace qutav {
namespace {

constexpr std::chrono::milliseconds kPollingInterval{500};
constexpr std::size_t kChunkSize = 1024;

bool IsSet(const PolledByte* flag) {
  return flag != nullptr && flag->load(std::memory_order_relaxed) != 0;
}

// Reads all that waits. A child that writes faster than it is read would keep it here for ever; the
// cancel flag ends that.
void Drain(OutputPipe& pipe, std::u16string& output, const PolledByte* cancelFlag) {
  for (auto waiting = pipe.BytesWaiting(); waiting && *waiting != 0 && !IsSet(cancelFlag);
       waiting = pipe.BytesWaiting()) {
    std::array<char, kChunkSize> chunk{};
    const std::size_t size = pipe.Read(chunk.data(), chunk.size());
    if (size == 0) return;
    const auto end = std::find(chunk.begin(), chunk.begin() + size, '\0');
    output += FromLocalCodePage({chunk.data(), static_cast<std::size_t>(end - chunk.begin())});
  }
}

// Leaves when the child has ended or the flag is set.
void WatchChild(ChildProcess& child, OutputPipe& pipe, std::u16string& output,
                const PolledByte* cancelFlag) {
  while (child.ExitCode() == kStillActive) {
    if (IsSet(cancelFlag)) {
      KillProcessTreeOf(child.Id());
      return;
    }
    Drain(pipe, output, cancelFlag);
    TheServices().clock->Sleep(kPollingInterval);
  }
}

}  // namespace

std::int32_t RunProcess(const std::u16string& command, bool capture, std::u16string& output,
                        const PolledByte* cancelFlag, std::uint32_t* processId) {
  Processes& processes = *TheServices().processes;
  const auto pipe = processes.CreateOutputPipe();
  if (pipe == nullptr || command.empty()) return -1;
  const auto child = processes.Start(command, capture ? pipe.get() : nullptr);
  if (child == nullptr) ReportFatalAndExit(u"CreateWinProcess");
  if (processId != nullptr) *processId = child->Id();
  const bool closed = pipe->CloseWriteEnd();
  if (!capture) return 0;
  if (!closed) return -1;
  WatchChild(*child, *pipe, output, cancelFlag);
  Drain(*pipe, output, nullptr);
  child->Wait();
  return static_cast<std::int32_t>(child->ExitCode());
}

void KillProcessTreeOf(std::uint32_t processId) {
  std::u16string scratch;
  RunProcess(u"taskkill /PID " + ToDecimal(processId) + u" /F /T", false, scratch);
}

void ReportFatalAndExit(const std::u16string& name) {
  const Services& services = TheServices();
  const SystemError error = services.processes->LastError();
  const auto code = static_cast<std::int32_t>(error.code);
  const std::u16string text = name + u" failed with error " + ToDecimal(code) + u": " + error.text;
  services.frontEnd->ShowMessage(
      {nullptr, u"Error", text, MessageIcon::kPlain, MessageButtons::kOk});
  services.processes->EndThisProcess(error.code);
  std::abort();  // a service that came back would leave callers that expect no return
}

}  // namespace qutav
