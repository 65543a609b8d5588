#include "packaging/PublishCancelled.h"

namespace qutav {

PolledByte PublishCancelled{0};

}  // namespace qutav
