#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace qutav::test {

/// Gives an environment variable a value, or none, until the test is over.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    Put(value);
  }
  ~EnvironmentVariable() { Put(old_); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  void Put(const std::optional<std::string>& value) const {
    if (value) {
      setenv(name_, value->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> old_;
};

}  // namespace qutav::test
