#pragma once

namespace qutav {

class FrontEnd;

/// The front end that shows real windows of the system.
FrontEnd& TheNativeFrontEnd();

}  // namespace qutav
