#pragma once

#include <chrono>

namespace qutav {

/// All waiting goes through here, so that a test can let time pass without spending it.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Holds the calling thread for at least that long (`Sleep`).
  virtual void Sleep(std::chrono::milliseconds duration) = 0;
};

}  // namespace qutav
