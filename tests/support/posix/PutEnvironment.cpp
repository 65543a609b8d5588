#include <cstdlib>

#include "EnvironmentVariable.h"

namespace qutav::test {

void PutEnvironment(const char* name, const std::optional<std::string>& value) {
  if (value) {
    setenv(name, value->c_str(), 1);
  } else {
    unsetenv(name);
  }
}

}  // namespace qutav::test
