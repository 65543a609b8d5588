#pragma once

namespace qutav {

/// Chooses the target from the settings and publishes. Without signing material it opens the
/// settings sheet on the deployment page instead and returns 0; else the result of `PublishDriver`.
int PublishEntry();

}  // namespace qutav
