#include "host/ProcessFamily.h"

#include <array>
#include <atomic>
#include <system_error>

#include "host/TextEncoding.h"
#include "host/windows/LastError.h"
#include "host/windows/SpawnPlan.h"
#include "platform/windows/Wide.h"

namespace qutav::host {
namespace {

constexpr UINT kEndedCode = 1;

// The job of the family that runs now, for the thread on which the console's interrupt arrives.
std::atomic<HANDLE> interruptedJob = nullptr;

BOOL WINAPI EndJobFirst(DWORD) {
  const HANDLE job = interruptedJob.load();
  if (job != nullptr) TerminateJobObject(job, kEndedCode);
  return FALSE;  // and then this process, as ever
}

ChildEnd WaitFor(HANDLE process) {
  WaitForSingleObject(process, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process, &code);
  return {ChildEnd::Kind::kExited, static_cast<int>(code)};
}

// Without folder and suffix.
std::string ProgramOf(HANDLE process) {
  std::array<wchar_t, 1024> name{};
  DWORD length = name.size();
  if (QueryFullProcessImageNameW(process, 0, name.data(), &length) == 0) return {};
  return std::filesystem::path(std::wstring(name.data(), length)).stem().string();
}

}  // namespace

// A job holds whatever its members start, at any depth.
class ProcessFamily::Members {
 public:
  Members() : job_(CreateJobObjectW(nullptr, nullptr)) {
    interruptedJob = job_.Value();
    SetConsoleCtrlHandler(EndJobFirst, TRUE);
  }
  ~Members() {
    SetConsoleCtrlHandler(EndJobFirst, FALSE);
    interruptedJob = nullptr;
  }
  Members(const Members&) = delete;
  Members& operator=(const Members&) = delete;

  ChildEnd Run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
               ChildOutput output) const {
    const DWORD stream =
        output == ChildOutput::kToStandardError ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE;
    const SuspendedProgram started = StartSuspended(program, arguments, stream, true);
    AssignProcessToJobObject(job_.Value(), started.process.Value());
    ResumeThread(started.thread.Value());
    return WaitFor(started.process.Value());
  }

  std::optional<ChildEnd> WaitForProgram(const std::string& name) const {
    std::optional<ChildEnd> last;
    while (true) {
      const Handle member = MemberOf(name);
      if (member.Value() == nullptr) return last;
      last = WaitFor(member.Value());
    }
  }

  void EndAll() const { TerminateJobObject(job_.Value(), kEndedCode); }

 private:
  // One that still runs; none where there is no such program.
  Handle MemberOf(const std::string& name) const {
    constexpr DWORD kMost = 256;
    struct {
      JOBOBJECT_BASIC_PROCESS_ID_LIST list;
      std::array<ULONG_PTR, kMost> further;
    } members{};
    members.list.NumberOfAssignedProcesses = kMost;
    QueryInformationJobObject(job_.Value(), JobObjectBasicProcessIdList, &members, sizeof members,
                              nullptr);
    for (DWORD i = 0; i < members.list.NumberOfProcessIdsInList; ++i) {
      const auto id = static_cast<DWORD>(members.list.ProcessIdList[i]);
      Handle process(OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
      if (process.Value() != nullptr && ProgramOf(process.Value()) == name &&
          WaitForSingleObject(process.Value(), 0) == WAIT_TIMEOUT) {
        return process;
      }
    }
    return Handle(nullptr);
  }

  Handle job_;
};

ProcessFamily::ProcessFamily() : members_(std::make_unique<Members>()) {}

ProcessFamily::~ProcessFamily() = default;

ChildEnd ProcessFamily::Run(const std::filesystem::path& program,
                            const std::vector<std::string>& arguments, ChildOutput output) {
  return members_->Run(program, arguments, output);
}

std::optional<ChildEnd> ProcessFamily::WaitForProgram(const std::string& name) {
  return members_->WaitForProgram(name);
}

void ProcessFamily::EndAll() { members_->EndAll(); }

}  // namespace qutav::host
