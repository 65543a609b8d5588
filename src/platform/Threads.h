#pragma once

#include <functional>
#include <memory>

namespace qutav {

class WorkerThread {
 public:
  /// Destroying a thread joins it first.
  virtual ~WorkerThread() = default;
  virtual void Join() = 0;
};

class Threads {
 public:
  virtual ~Threads() = default;
  /// Starts a thread; null when the system has none left.
  virtual std::unique_ptr<WorkerThread> Start(std::function<void()> procedure) = 0;
};

}  // namespace qutav
