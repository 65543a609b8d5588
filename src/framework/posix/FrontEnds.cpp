#include "framework/FrontEnds.h"

#include "framework/scripted/ScriptedFrontEnd.h"

namespace qutav {

FrontEnd& SystemFrontEnd() { return EnvironmentFrontEnd(); }

}  // namespace qutav
