#pragma once

#include "support/ProcessRunner.h"

namespace qutav {

/// Set when the user has cancelled the publish in work; the steps on devices look at it.
extern PolledByte PublishCancelled;

}  // namespace qutav
