#include "framework/FrontEnds.h"

#include "framework/scripted/ScriptedFrontEnd.h"
#include "framework/windows/WindowedScriptFrontEnd.h"
#include "platform/Environment.h"

namespace qutav {
namespace {

std::string Setting(const char* name) { return EnvironmentText(name).value_or(""); }

}  // namespace

FrontEnd& SystemFrontEnd() {
  const bool hasScript = !Setting("QUTAV_SCRIPT").empty() || !Setting("QUTAV_TRANSCRIPT").empty();
  if (!hasScript) {
    static NativeFrontEnd native;
    return native;
  }
  if (Setting("QUTAV_FRONT_END") == "windows") {
    static WindowedScriptFrontEnd windowed(EnvironmentDirector());
    return windowed;
  }
  return EnvironmentFrontEnd();
}

}  // namespace qutav
