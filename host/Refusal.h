#pragma once

#include <stdexcept>

namespace qutav::host {

/// The command cannot begin: its text tells the user what is wrong with what they gave.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace qutav::host
