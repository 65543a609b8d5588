#include "win/TestMovie.h"

#include <optional>

#include "packaging/DescriptorGenerator.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "support/ProcessRunner.h"
#include "win/DocumentChecks.h"
#include "win/DocumentContext.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"
#include "win/HostScript.h"
#include "win/LaunchCall.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"
#include "win/SimulatorController.h"

namespace qutav {
namespace {

constexpr std::size_t kProfileArgument = 3;
constexpr std::int32_t kHostAsksForPlainLaunch = 2;

// A single scene is exported under a name of its own, each time with a descriptor of its own.
bool NamesScene() {
  return DocumentPaths.MovieBaseName.Text().find(u"_Scene ") != std::u16string::npos;
}

bool ProvideKnownDescriptor(const HostCallContext& call) {
  if (NamesScene()) return GenerateDefaultDescriptor() != 0;
  return HasOrRelocatesDescriptor(call) || GenerateDefaultDescriptor() != 0;
}

bool ProvideFirstDescriptor(const HostCallContext& call) {
  DetectOutputType(call);
  SettingsSet(keys::kDocumentPath, DocumentPaths.DocumentPath.Text());
  return TheServices().files->Exists(DocumentPaths.DescriptorPath) ||
         GenerateDefaultDescriptor() != 0;
}

// The status with which the caller ends; nothing when the descriptor is ready.
std::optional<std::int32_t> PrepareDescriptor(const HostCallContext& call) {
  const bool provided =
      DocumentHasNoStoredFolder(call) ? ProvideFirstDescriptor(call) : ProvideKnownDescriptor(call);
  if (!provided) return 0;
  UpdateExtensionIds();
  if (!OpenDescriptor()) return 1;
  return {};
}

std::u16string PlainLaunchCommand(const HostCallContext& call, const CommandProfileText& profile) {
  const bool extended = !LaunchExtensionFolder().empty();
  const bool mobile = profile == u"mobileDevice";
  std::u16string command = u"\"" + LaunchSdkRoot() + u"/bin/wep" +
                           TheServices().processes->ProgramSuffix() + u"\" \"" +
                           DocumentPaths.ActiveDescriptorPath.Text();
  if (extended) {
    command += u"\" -profile extendedMobileDevice";
  } else {
    command += IsDesktopProfile(profile) ? u"\" " : u"\" -profile " + *profile;
  }
  std::u16string unzipped;
  if (extended && UnzippedExtensionFolder(unzipped)) command += u" -extdir \"" + unzipped + u"\" ";
  if (extended || mobile) command += u" -screensize " + BuildScreenSize(call);
  if (mobile && !FindSimulatorController().empty()) {
    command += u" -Xsimulation " + ToDecimal(SimulatorPort);
  }
  return command;
}

std::int32_t TestOlderDocument(const HostCallContext& call, const HostValue* arguments) {
  HostValue exported = 0;
  const std::int32_t status = ExportMovieForTest(call, DocumentPaths.MovieUri, exported);
  return status == 1 && exported == kHostZero ? RunPlainLaunch(call, arguments) : 0;
}

std::int32_t TestThroughHost(const HostCallContext& call, const HostValue* arguments) {
  const CommandProfileText profile = HostTextOrNull(call, arguments[kProfileArgument]);
  if (const auto status = PrepareDescriptor(call)) return *status;
  const HostLaunch launch = BuildLaunchCall(call, profile, false);
  std::int32_t answer = 0;
  const std::int32_t status = EvaluateLaunch(call, launch, answer);
  if (answer == kHostAsksForPlainLaunch) return RunPlainLaunch(call, arguments);
  if (answer != 0 && !launch.controller.empty()) KillProcessTreeOf(launch.controllerProcess);
  return status;
}

}  // namespace

std::int32_t ExportMovieForTest(const HostCallContext& call, const std::u16string& movieUri,
                                HostValue& result) {
  const HostResult exported =
      EvaluateHostScript(call, u"qu.getDocumentDOM().exportQMV(\"" + movieUri + u"\", \"true\");");
  result = exported.value;
  return exported.status;
}

std::u16string TraceScript(const std::u16string& output) {
  std::u16string text = ReplaceAll(output, u"\r", u"");
  text = ReplaceAll(text, u"\n", u"\\n");
  text = ReplaceAll(text, u"\"", u"'");
  return u"qu.trace(\"" + text + u"\");";
}

std::int32_t RunPlainLaunch(const HostCallContext& call, const HostValue* arguments) {
  std::u16string output;
  const CommandProfileText profile = HostTextOrNull(call, arguments[kProfileArgument]);
  if (const auto status = PrepareDescriptor(call)) return *status;
  if (RunProcess(PlainLaunchCommand(call, profile), false, output) != 0) {
    EvaluateHostScript(call, TraceScript(output));  // the only sign of a launch that failed
  }
  return 1;
}

std::int32_t RunTestMovie(const HostCallContext& call, const HostValue* arguments) {
  KillDebugLaunchers();
  if (!PrepareDocumentContext(call, arguments[1], arguments[0], arguments[2])) return 1;
  const bool current = EvaluateToText(call, u"qu.getDocumentDOM().asVersion") == u"3";
  return current ? TestThroughHost(call, arguments) : TestOlderDocument(call, arguments);
}

}  // namespace qutav
