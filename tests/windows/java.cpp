// The java.exe of the Windows tests: hands its command line over to the machine's own Java.
//
// Wine starts a program of the machine, but tells neither its end nor its output. So both come by
// file: hand_over.py, whose path stands in QUTAV_HAND_OVER, takes the arguments from a folder and
// leaves there what Java printed and how it ended. The file "alive" goes when this program ends, in
// whatever way; Java then has to end as well.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>

#include "platform/Environment.h"
#include "platform/Text.h"
#include "platform/windows/Handle.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"
// behind the system's own header
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

namespace {

namespace fs = std::filesystem;

constexpr int kCannotHandOver = 99;

fs::path MakeExchangeFolder() {
  fs::path folder =
      fs::temp_directory_path() / ("qutav-java-" + std::to_string(GetCurrentProcessId()));
  fs::remove_all(folder);
  fs::create_directory(folder);
  return folder;
}

void KeepArguments(const fs::path& file) {
  std::ofstream kept(file, std::ios::binary);
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) kept << qutav::ToUtf8(qutav::FromWide(arguments[i])) << '\n';
  LocalFree(arguments);
}

qutav::Handle MakeSignOfLife(const fs::path& file) {
  return qutav::Handle(CreateFileW(file.c_str(), GENERIC_WRITE | DELETE,
                                   FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, CREATE_ALWAYS,
                                   FILE_FLAG_DELETE_ON_CLOSE, nullptr));
}

bool StartHandOver(const std::string& program, const fs::path& folder) {
  std::wstring line =
      L"\"\\\\?\\unix" + fs::path(program).wstring() + L"\" \"" + folder.wstring() + L"\"";
  STARTUPINFOW startUp{};
  startUp.cb = sizeof startUp;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startUp,
                     &started) == 0) {
    return false;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return true;
}

int WaitForEnd(const fs::path& file) {
  while (!fs::exists(file)) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  int code = kCannotHandOver;
  std::ifstream(file) >> code;
  return code;
}

}  // namespace

int main() {
  _setmode(_fileno(stdout), _O_BINARY);
  const auto program = qutav::EnvironmentText("QUTAV_HAND_OVER");
  if (!program) return kCannotHandOver;
  const fs::path folder = MakeExchangeFolder();
  KeepArguments(folder / "arguments");
  qutav::Handle alive = MakeSignOfLife(folder / "alive");
  if (!StartHandOver(*program, folder)) return kCannotHandOver;
  const int code = WaitForEnd(folder / "end");
  std::ifstream output(folder / "output", std::ios::binary);
  if (output.peek() != EOF) std::cout << output.rdbuf();
  output.close();
  alive.Close();
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return code;
}
