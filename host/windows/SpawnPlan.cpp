#include "host/windows/SpawnPlan.h"

#include <algorithm>
#include <iterator>
#include <system_error>

#include "host/NativePath.h"
#include "host/TextEncoding.h"
#include "host/windows/CommandLine.h"
#include "host/windows/LastError.h"
#include "platform/windows/Wide.h"

namespace qutav::host {
namespace {

// A copy of one of our standard handles that a child can take over.
HANDLE Inherited(DWORD stream) {
  HANDLE copy = nullptr;
  DuplicateHandle(GetCurrentProcess(), GetStdHandle(stream), GetCurrentProcess(), &copy, 0, TRUE,
                  DUPLICATE_SAME_ACCESS);
  return copy;
}

std::u16string CommandLineOf(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments) {
  std::vector<std::u16string> wide;
  std::transform(arguments.begin(), arguments.end(), std::back_inserter(wide),
                 [](const std::string& argument) { return FromUtf8(argument); });
  return JoinCommandLine(ToNativeForm(program), wide);
}

}  // namespace

SuspendedProgram StartSuspended(const std::filesystem::path& program,
                                const std::vector<std::string>& arguments, DWORD output,
                                bool reads) {
  const Handle input(reads ? Inherited(STD_INPUT_HANDLE) : nullptr);
  const Handle out(Inherited(output));
  const Handle error(Inherited(STD_ERROR_HANDLE));
  STARTUPINFOW startUp{};
  startUp.cb = sizeof startUp;
  startUp.dwFlags = STARTF_USESTDHANDLES;
  startUp.hStdInput = input.Value();
  startUp.hStdOutput = out.Value();
  startUp.hStdError = error.Value();
  std::u16string line = CommandLineOf(program, arguments);
  PROCESS_INFORMATION started{};
  if (CreateProcessW(program.c_str(), WideBuffer(line), nullptr, nullptr, TRUE, CREATE_SUSPENDED,
                     nullptr, nullptr, &startUp, &started) == 0) {
    throw std::system_error(LastSystemError(), program.string());
  }
  return {Handle(started.hProcess), Handle(started.hThread)};
}

}  // namespace qutav::host
