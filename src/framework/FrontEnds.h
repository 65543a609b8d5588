#pragma once

namespace qutav {

class FrontEnd;

/// The front end of this system: the scripted one on POSIX, and everywhere when a script or a
/// transcript is asked for. Defined once per system.
FrontEnd& SystemFrontEnd();

}  // namespace qutav
