#pragma once

#include <atomic>
#include <cstdint>
#include <string>

namespace qutav {

/// A byte that one thread sets and another polls, with no order of anything else implied.
using PolledByte = std::atomic<unsigned char>;

/// The one way to start another program: a whole command line, without a shell and without a
/// window.
///
/// With `capture` it waits for the end, appends what the child printed to `output` and returns the
/// exit code. The child is looked at every 500 ms; a `cancelFlag` that is not zero then kills it
/// and all it has started. Output is bytes in the local code page, converted in chunks of 1024
/// bytes, each cut at its first NUL. Without `capture` it returns 0 as soon as the child runs.
///
/// `processId` receives the child's id. Returns -1 for an empty command and for a pipe that cannot
/// be made or closed. A command that cannot be started is told in a message box and ENDS THIS
/// PROCESS, with the system's error as exit code: no caller has a way on from there.
std::int32_t RunProcess(const std::u16string& command, bool capture, std::u16string& output,
                        const PolledByte* cancelFlag = nullptr, std::uint32_t* processId = nullptr);

/// Kills a process and all it has started; the id 0 has no effect.
void KillProcessTreeOf(std::uint32_t processId);

/// Tells the system's last error in a message box, "%s failed with error %d: %s", and ends this
/// process with the error's code.
[[noreturn]] void ReportFatalAndExit(const std::u16string& name);

}  // namespace qutav
