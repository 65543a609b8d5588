#include "framework/FrontEnds.h"

#include "framework/scripted/ScriptedFrontEnd.h"
#include "framework/windows/NativeFrontEnd.h"
#include "platform/Environment.h"

namespace qutav {
namespace {

bool IsSet(const char* name) { return !EnvironmentText(name).value_or("").empty(); }

}  // namespace

FrontEnd& SystemFrontEnd() {
  if (IsSet("QUTAV_SCRIPT") || IsSet("QUTAV_TRANSCRIPT")) return EnvironmentFrontEnd();
  return TheNativeFrontEnd();
}

}  // namespace qutav
