#include "win/LaunchCall.h"

#include <algorithm>

#include "platform/Services.h"
#include "platform/Text.h"
#include "support/Paths.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"
#include "win/HostScript.h"
#include "win/SimulatorController.h"

namespace qutav {
namespace {

constexpr char16_t kMobile[] = u"mobileDevice";
constexpr char16_t kExtendedMobile[] = u"extendedMobileDevice";

std::int32_t StageSide(const HostCallContext& call, const char16_t* side) {
  const HostResult result =
      EvaluateHostScript(call, std::u16string(u"qu.getDocumentDOM().") + side + u";");
  return result.status == 1 ? HostInteger(call, result.value, 0) : 0;
}

std::u16string ProfileArgument(const CommandProfileText& profile, bool extended) {
  if (extended) return kExtendedMobile;
  return IsDesktopProfile(profile) ? u"" : *profile;
}

void StartController(const HostCallContext& call, HostLaunch& launch) {
  if (!StartSimulatorController(call, launch.controller, u" -once ", launch.controllerProcess)) {
    launch.controller.clear();
  }
}

}  // namespace

std::u16string LaunchExtensionFolder() {
  std::u16string folder;
  std::vector<std::u16string> names;
  GetExtensionList(folder, names);
  return folder;
}

std::u16string LaunchSdkRoot() { return WithForwardSlashes(SdkRoot()); }

std::u16string BuildScreenSize(const HostCallContext& call) {
  const auto [smaller, larger] =
      std::minmax({StageSide(call, u"width"), StageSide(call, u"height")});
  const std::u16string size = ToDecimal(smaller) + u"x" + ToDecimal(larger);
  return size + u":" + size;
}

bool IsDesktopProfile(const CommandProfileText& profile) {
  return !profile || *profile == u"undefined" || *profile == u"desktop";
}

HostLaunch BuildLaunchCall(const HostCallContext& call, const CommandProfileText& profile,
                           bool debug) {
  const bool mobile = profile == kMobile;
  const std::u16string extensionFolder = LaunchExtensionFolder();
  HostLaunch launch;
  launch.controller = FindSimulatorController();
  AdvanceSimulatorPort();
  if (mobile && !launch.controller.empty()) StartController(call, launch);
  const bool simulated = mobile && !launch.controller.empty();
  const bool extended = simulated || !extensionFolder.empty();
  const std::u16string screenSize = extended || mobile ? BuildScreenSize(call) : u"";
  std::u16string unzipped;
  if (!extensionFolder.empty()) UnzippedExtensionFolder(unzipped);

  const std::u16string root = LaunchSdkRoot();
  const std::u16string program = u"/bin/wep" + TheServices().processes->ProgramSuffix();
  const std::u16string next = u"\", \"";
  launch.script = u"qu.getDocumentDOM().debugTAVMovie(\"" + root + program + next + root +
                  u"/runtimes/tav/win" + next + DocumentPaths.ActiveDescriptorPath.Text() + next +
                  (debug ? u"true" : u"false") + next + ProfileArgument(profile, extended) +
                  u"\", \"\", \"\", \"" + screenSize + u"\",-1,\"\",\"" + unzipped + u"\",\"\",\"" +
                  (simulated ? ToDecimal(SimulatorPort) : u"") + u"\");";
  return launch;
}

std::int32_t EvaluateLaunch(const HostCallContext& call, const HostLaunch& launch,
                            std::int32_t& answer) {
  const HostResult result = EvaluateHostScript(call, launch.script);
  answer = HostInteger(call, result.value, 0);
  return result.status;
}

}  // namespace qutav
