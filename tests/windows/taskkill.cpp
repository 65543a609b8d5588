// A taskkill that knows /PID, /F and /T, for systems whose own does not know /T. It lies beside the
// programs of the tests, where a command is looked for first.
#include <cstdlib>
#include <string_view>
#include <vector>

#include "platform/windows/Handle.h"
// behind the system's own header
#include <tlhelp32.h>

namespace {

using qutav::Handle;

// A process and all that it has started, the ones that were started last at the end.
std::vector<DWORD> FamilyOf(DWORD root) {
  std::vector<DWORD> family{root};
  const Handle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  for (std::size_t i = 0; i < family.size(); ++i) {
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot.Value(), &entry); more != 0;
         more = Process32NextW(snapshot.Value(), &entry)) {
      if (entry.th32ParentProcessID == family[i]) family.push_back(entry.th32ProcessID);
    }
  }
  return family;
}

bool Kill(DWORD pid) {
  const Handle process(OpenProcess(PROCESS_TERMINATE, FALSE, pid));
  return process.IsOpen() && TerminateProcess(process.Value(), 1) != 0;
}

}  // namespace

int main(int count, char** arguments) {
  constexpr int kNotFound = 128;
  for (int i = 1; i + 1 < count; ++i) {
    if (std::string_view(arguments[i]) != "/PID") continue;
    const auto root = static_cast<DWORD>(std::strtoul(arguments[i + 1], nullptr, 10));
    const std::vector<DWORD> family = FamilyOf(root);
    const bool killed = Kill(root);
    for (std::size_t j = 1; j < family.size(); ++j) Kill(family[j]);
    return killed ? 0 : kNotFound;
  }
  return 1;
}
