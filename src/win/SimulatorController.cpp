#include "win/SimulatorController.h"

#include <chrono>

#include "platform/Services.h"
#include "platform/Text.h"
#include "support/ProcessRunner.h"
#include "win/DocumentPaths.h"
#include "win/HostScript.h"
#include "win/InterfaceLanguage.h"

namespace qutav {
namespace {

constexpr std::int32_t kBeforeFirstPort = 7835;
constexpr std::int32_t kLastPort = 7845;
constexpr std::chrono::milliseconds kStartTime{1000};

}  // namespace

std::int32_t SimulatorPort = kBeforeFirstPort;

void AdvanceSimulatorPort() {
  if (SimulatorPort >= kLastPort) SimulatorPort = kBeforeFirstPort;
  ++SimulatorPort;
}

bool KillDebugLaunchers() {
  std::u16string scratch;
  RunProcess(u"taskkill /IM wep.exe /F /T ", true, scratch);
  return true;
}

std::u16string FindSimulatorController() {
  const std::u16string path = DocumentPaths.LaunchPath.Text() +
                              u"Common/Configuration/simulator/SimController" +
                              TheServices().processes->ProgramSuffix();
  return TheServices().files->Exists(path) ? path : u"";
}

bool StartSimulatorController(const HostCallContext& call, const std::u16string& path,
                              const std::u16string& switches, std::uint32_t& processId) {
  const std::u16string language = HostLanguageCode(call).value_or(u"en_US");
  const std::u16string command =
      path + u" " + switches + u" -lang " + language + u" -port " + ToDecimal(SimulatorPort);
  std::u16string scratch;
  if (RunProcess(command, false, scratch, nullptr, &processId) != 0) return false;
  TheServices().clock->Sleep(kStartTime);
  return true;
}

}  // namespace qutav
