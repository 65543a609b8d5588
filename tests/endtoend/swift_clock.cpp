// Preloaded into the host command, so that a test need not sit through its fixed waits. Waits of
// the lengths in QUTAV_SKIPPED_WAITS (milliseconds, separated by blanks) pass at once. Waits of a
// second pass when the file that QUTAV_TICK_GATE names is there, and not before.

#include <dlfcn.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <sstream>

namespace {

using NanoSleep = int (*)(const timespec*, timespec*);

constexpr long kSecond = 1000;

long MillisecondsOf(const timespec& duration) {
  return static_cast<long>(duration.tv_sec) * kSecond + duration.tv_nsec / 1000000;
}

bool IsSkipped(long milliseconds) {
  const char* skipped = std::getenv("QUTAV_SKIPPED_WAITS");
  std::istringstream lengths(skipped == nullptr ? "" : skipped);
  for (long length = 0; lengths >> length;) {
    if (length == milliseconds) return true;
  }
  return false;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int nanosleep(const timespec* duration,
                                                                timespec* remaining) {
  static const auto sleepFor = reinterpret_cast<NanoSleep>(dlsym(RTLD_NEXT, "nanosleep"));
  const long milliseconds = MillisecondsOf(*duration);
  if (IsSkipped(milliseconds)) return 0;
  const char* gate = std::getenv("QUTAV_TICK_GATE");
  if (milliseconds != kSecond || gate == nullptr) return sleepFor(duration, remaining);
  constexpr timespec kShort{0, 10'000'000};
  while (access(gate, F_OK) != 0) sleepFor(&kShort, nullptr);
  return 0;
}
