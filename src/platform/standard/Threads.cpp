#include "platform/Threads.h"

#include <system_error>
#include <thread>
#include <utility>

#include "platform/standard/StandardServices.h"

namespace qutav {
namespace {

class StandardWorkerThread final : public WorkerThread {
 public:
  explicit StandardWorkerThread(std::function<void()> procedure) : thread_(std::move(procedure)) {}
  ~StandardWorkerThread() override { Join(); }
  StandardWorkerThread(const StandardWorkerThread&) = delete;
  StandardWorkerThread& operator=(const StandardWorkerThread&) = delete;

  void Join() override {
    if (thread_.joinable()) thread_.join();
  }

 private:
  std::thread thread_;
};

class StandardThreadService final : public Threads {
 public:
  std::unique_ptr<WorkerThread> Start(std::function<void()> procedure) override {
    try {
      return std::make_unique<StandardWorkerThread>(std::move(procedure));
    } catch (const std::system_error&) {
      return nullptr;
    }
  }
};

}  // namespace

Threads& StandardThreads() {
  static StandardThreadService threads;
  return threads;
}

}  // namespace qutav
