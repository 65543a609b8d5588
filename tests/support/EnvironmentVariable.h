#pragma once

#include <optional>
#include <string>

#include "platform/Environment.h"

namespace qutav::test {

/// Sets a variable of this process, or takes it away. Each system does it in its own way.
void PutEnvironment(const char* name, const std::optional<std::string>& value);

/// Gives an environment variable a value, or none, until the test is over.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
    old_ = EnvironmentText(name);
    PutEnvironment(name_, value);
  }
  ~EnvironmentVariable() { PutEnvironment(name_, old_); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> old_;
};

}  // namespace qutav::test
