// The call by which the host runs the movie in the debug launcher, shared by test and debug runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "win/HostEnvironment.h"

namespace qutav {

/// The profile that a script asks for; nothing when it names none. An empty text is not the same:
/// it is passed on as it stands.
using CommandProfileText = std::optional<std::u16string>;

/// One launch through the host.
struct HostLaunch {
  std::u16string script;
  std::u16string controller;            ///< path of the simulator controller; empty without one
  std::uint32_t controllerProcess = 0;  ///< 0 when it was found but not started
};

/// The folder of the native extensions, empty without any.
std::u16string LaunchExtensionFolder();

/// The SDK's folder with forward slashes.
std::u16string LaunchSdkRoot();

/// "480x800:480x800" for a stage of 800 by 480.
std::u16string BuildScreenSize(const HostCallContext& call);

/// Whether a profile stands for the desktop, which the launcher takes as none.
bool IsDesktopProfile(const CommandProfileText& profile);

/// Builds the call and starts the simulator controller where the profile asks for it.
HostLaunch BuildLaunchCall(const HostCallContext& call, const CommandProfileText& profile,
                           bool debug);

/// Evaluates the call, and returns its status and, in `answer`, the host's integer, 0 without one.
std::int32_t EvaluateLaunch(const HostCallContext& call, const HostLaunch& launch,
                            std::int32_t& answer);

}  // namespace qutav
