#include "host/DebugLauncher.h"

#include <array>
#include <cstddef>

#include "host/NativePath.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

// Places in the arguments of `debugTAVMovie`; those between them are of no use to the launcher.
constexpr std::size_t kProgram = 0;
constexpr std::size_t kRuntime = 1;
constexpr std::size_t kDescriptor = 2;
constexpr std::size_t kDebug = 3;

struct LauncherOption {
  std::size_t place;
  const char* name;
};

constexpr std::array<LauncherOption, 4> kOptions = {
    {{4, "-profile"}, {10, "-extdir"}, {7, "-screensize"}, {12, "-Xsimulation"}}};

std::filesystem::path PathAt(const std::vector<ScriptValue>& arguments, std::size_t place) {
  return FromNativeForm(TextAt(arguments, place));
}

}  // namespace

ProgramCall LauncherCall(const std::vector<ScriptValue>& arguments) {
  ProgramCall call = {PathAt(arguments, kProgram),
                      {ToSettingsForm(PathAt(arguments, kDescriptor)), "-runtime",
                       ToSettingsForm(PathAt(arguments, kRuntime))}};
  if (TextAt(arguments, kDebug) == u"true") call.arguments.emplace_back("-debug");
  for (const auto& [place, name] : kOptions) {
    const std::string value = ToUtf8(TextAt(arguments, place));
    if (!value.empty()) call.arguments.insert(call.arguments.end(), {name, value});
  }
  return call;
}

}  // namespace qutav::host
