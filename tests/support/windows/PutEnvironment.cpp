#include <cstdlib>

#include "EnvironmentVariable.h"
#include "platform/Text.h"
#include "platform/windows/Wide.h"

namespace qutav::test {

// An empty value takes the variable away.
void PutEnvironment(const char* name, const std::optional<std::string>& value) {
  _wputenv_s(Wide(FromUtf8(name)), Wide(FromUtf8(value.value_or(""))));
}

}  // namespace qutav::test
