#pragma once

#include "host/HostObjects.h"
#include "host/ScriptEngine.h"

namespace qutav::host {

/// The object that `qu.getDocumentDOM()` gives. Its functions report like the application's:
/// a key that is not held is the number 0, `exportQMV` gives 0 for success, `exportQMVPrivate`
/// gives 1 for success, 2 for a movie without script and 0 for a failure, which it also tells.
/// `debugTAVMovie` starts the launcher and gives 0, or tells why it cannot be started and gives 1.
ScriptObject MakeDocumentObject(HostState& state);

}  // namespace qutav::host
