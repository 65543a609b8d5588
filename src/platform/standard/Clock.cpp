#include "platform/Clock.h"

#include <thread>

#include "platform/standard/StandardServices.h"

namespace qutav {
namespace {

class SleepingClock final : public Clock {
 public:
  void Sleep(std::chrono::milliseconds duration) override { std::this_thread::sleep_for(duration); }
};

}  // namespace

Clock& StandardClock() {
  static SleepingClock clock;
  return clock;
}

}  // namespace qutav
