#include "platform/Processes.h"

#include "platform/windows/Handle.h"
#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/SystemText.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

static_assert(kStillActive == STILL_ACTIVE);

thread_local DWORD lastError = ERROR_SUCCESS;

SECURITY_ATTRIBUTES Inheritable() { return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE}; }

class WindowsPipe final : public OutputPipe {
 public:
  WindowsPipe(HANDLE readEnd, HANDLE writeEnd) : read_(readEnd), write_(writeEnd) {}

  bool CloseWriteEnd() override { return write_.Close(); }

  std::optional<std::size_t> BytesWaiting() override {
    DWORD count = 0;
    if (PeekNamedPipe(read_.Value(), nullptr, 0, nullptr, &count, nullptr) == 0) return {};
    return count;
  }

  std::size_t Read(char* buffer, std::size_t size) override {
    DWORD count = 0;
    return ReadFile(read_.Value(), buffer, static_cast<DWORD>(size), &count, nullptr) != 0 ? count
                                                                                           : 0;
  }

  HANDLE WriteEnd() const { return write_.Value(); }

 private:
  Handle read_;
  Handle write_;
};

class WindowsChild final : public ChildProcess {
 public:
  explicit WindowsChild(const PROCESS_INFORMATION& started)
      : process_(started.hProcess), thread_(started.hThread), id_(started.dwProcessId) {}

  std::uint32_t Id() const override { return id_; }

  std::uint32_t ExitCode() override {
    DWORD code = 0;
    GetExitCodeProcess(process_.Value(), &code);
    return code;
  }

  void Wait() override { WaitForSingleObject(process_.Value(), INFINITE); }

 private:
  Handle process_;
  Handle thread_;
  DWORD id_;
};

class WindowsProcesses final : public Processes {
 public:
  std::unique_ptr<OutputPipe> CreateOutputPipe() override {
    SECURITY_ATTRIBUTES inheritable = Inheritable();
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (CreatePipe(&readEnd, &writeEnd, &inheritable, 0) == 0) return nullptr;
    return std::make_unique<WindowsPipe>(readEnd, writeEnd);
  }

  std::unique_ptr<ChildProcess> Start(const std::u16string& commandLine,
                                      OutputPipe* output) override {
    STARTUPINFOW startUp{};
    startUp.cb = sizeof startUp;
    startUp.dwFlags = STARTF_USESTDHANDLES;
    if (output != nullptr) startUp.hStdOutput = static_cast<WindowsPipe*>(output)->WriteEnd();
    startUp.hStdError = startUp.hStdOutput;
    std::u16string line = commandLine;  // the call writes to it
    SECURITY_ATTRIBUTES inheritable = Inheritable();
    PROCESS_INFORMATION started{};
    const bool done = CreateProcessW(nullptr, WideBuffer(line), &inheritable, nullptr, TRUE,
                                     CREATE_NO_WINDOW | NORMAL_PRIORITY_CLASS, nullptr, nullptr,
                                     &startUp, &started) != 0;
    lastError = done ? ERROR_SUCCESS : GetLastError();
    if (!done) return nullptr;
    return std::make_unique<WindowsChild>(started);
  }

  SystemError LastError() override { return {lastError, SystemTextOf(lastError)}; }

  void EndThisProcess(std::uint32_t exitCode) override { ExitProcess(exitCode); }

  std::u16string ProgramSuffix() const override { return u".exe"; }

  char16_t HeadSeparator() const override { return u'\\'; }
};

}  // namespace

Processes& SystemProcesses() {
  static WindowsProcesses processes;
  return processes;
}

}  // namespace qutav
