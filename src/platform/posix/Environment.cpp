#include "platform/Environment.h"

#include <cstdlib>

namespace qutav {

std::optional<std::string> EnvironmentText(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (value == nullptr) return {};
  return value;
}

}  // namespace qutav
