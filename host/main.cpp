#include <exception>
#include <iostream>
#include <string>
#include <variant>
#include <vector>

#include "host/CommandLine.h"
#include "host/Console.h"
#include "host/DeviceRunCommand.h"
#include "host/DevicesCommand.h"
#include "host/EvaluateCommand.h"
#include "host/ExitCodes.h"
#include "host/LaunchCommand.h"
#include "host/ProcessState.h"
#include "host/PublishCommand.h"
#include "host/Refusal.h"
#include "host/SettingsCommand.h"
#include "host/Terminal.h"

namespace qutav::host {
namespace {

int Run(const CommandRequest& request, Console& console) {
  if (const auto* publish = std::get_if<PublishOptions>(&request)) {
    return RunPublish(*publish, console);
  }
  if (const auto* launch = std::get_if<LaunchOptions>(&request)) {
    return RunLaunch(*launch, console);
  }
  if (const auto* devices = std::get_if<DevicesOptions>(&request)) {
    return RunDevices(*devices, console);
  }
  if (const auto* settings = std::get_if<SettingsOptions>(&request)) {
    return RunSettings(*settings, console);
  }
  if (const auto* deviceRun = std::get_if<DeviceRunOptions>(&request)) {
    return RunOnDevices(*deviceRun, console);
  }
  if (const auto* evaluate = std::get_if<EvaluateOptions>(&request)) {
    return RunEvaluate(*evaluate, console);
  }
  return std::get<ExitRequest>(request).exitCode;
}

int RunReported(const CommandRequest& request, Console& console) {
  try {
    return Run(request, console);
  } catch (const Refusal& refusal) {
    console.Message(refusal.what());
    return kRefused;
  } catch (const std::exception& error) {
    console.Message(error.what());
    return kNotDone;
  }
}

}  // namespace
}  // namespace qutav::host

int main(int count, char** arguments) {
  using namespace qutav::host;
  ListenToChildren();
  ShowUtf8();
  const std::vector<std::string> texts = ProcessArguments(count, arguments);
  std::vector<const char*> pointers;
  for (const std::string& text : texts) pointers.push_back(text.c_str());
  Console console(std::cout, std::cerr, StandardErrorIsTerminal());
  return RunReported(
      ParseCommandLine(static_cast<int>(pointers.size()), pointers.data(), std::cout, std::cerr),
      console);
}
