#include "win/HostEnvironment.h"

namespace qutav {

HostTable HostEnvironment;
HostCallContext HostContext;

}  // namespace qutav
