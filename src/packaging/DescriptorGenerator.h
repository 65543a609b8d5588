#pragma once

namespace qutav {

/// Writes the default descriptor beside the movie, over whatever stands there, from the settings.
/// It has no failure result: a file that could not be written shows at the next load. Always 1.
int GenerateDefaultDescriptor();

}  // namespace qutav
