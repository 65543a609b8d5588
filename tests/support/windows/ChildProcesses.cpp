#include "ChildProcesses.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <iostream>
#include <string>

#include "platform/windows/System.h"

namespace qutav::test {
namespace {

[[noreturn]] void HangSilently() {
  while (true) Sleep(INFINITE);
}

[[noreturn]] void Hang() {
  std::cout << GetCurrentProcessId() << std::endl;
  HangSilently();
}

// Starts this program once more, with our standard handles; its process id.
DWORD StartAnother(const std::wstring& order) {
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring line = L"\"" + std::wstring(program) + L"\" " + order;
  STARTUPINFOW startUp{};
  startUp.cb = sizeof startUp;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startUp,
                     &started) == 0) {
    return 0;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return started.dwProcessId;
}

}  // namespace

void PrepareStreams() { _setmode(_fileno(stdout), _O_BINARY); }

bool RunProcessOrder(std::string_view order) {
  if (order == "hang") {
    Hang();
  } else if (order == "hang-silently") {
    HangSilently();
  } else if (order == "family") {
    StartAnother(L"hang");
    Hang();
  } else if (order == "leave") {
    std::cout << StartAnother(L"hang-silently");
  } else {
    return false;
  }
  return true;
}

}  // namespace qutav::test
