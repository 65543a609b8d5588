#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace qutav::test {

/// Looks again and again until the condition holds; false when it does not within a long time.
inline bool Eventually(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::yield();
  }
  return true;
}

}  // namespace qutav::test
