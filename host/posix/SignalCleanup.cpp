#include "host/posix/SignalCleanup.h"

#include <signal.h>
#include <string.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdlib>

namespace qutav::host {
namespace {

// Plain atomic pointers, because a signal handler may neither lock nor allocate. A command has
// two temporary files at most; one beyond the slots would only miss the removal at a signal.
constexpr std::size_t kSlots = 8;
std::array<std::atomic<char*>, kSlots> g_files;

void RemoveFilesAndEnd(int number) {
  for (const std::atomic<char*>& slot : g_files) {
    const char* file = slot.load();
    if (file != nullptr) unlink(file);
  }
  signal(number, SIG_DFL);
  raise(number);
}

// A signal that the caller told us to ignore stays ignored.
void Watch(int number) {
  struct sigaction present = {};
  sigaction(number, nullptr, &present);
  if (present.sa_handler != SIG_DFL) return;
  struct sigaction action = {};
  action.sa_handler = RemoveFilesAndEnd;
  sigaction(number, &action, nullptr);
}

}  // namespace

void RemoveAtSignal(const std::filesystem::path& file) {
  char* name = strdup(file.c_str());
  bool kept = false;
  for (std::size_t i = 0; i < kSlots && !kept; ++i) {
    char* empty = nullptr;
    kept = g_files[i].compare_exchange_strong(empty, name);
  }
  if (!kept) std::free(name);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) Watch(number);
}

void RemoveNow(const std::filesystem::path& file) {
  unlink(file.c_str());
  for (std::atomic<char*>& slot : g_files) {
    char* name = slot.load();
    if (name == nullptr || file != name) continue;
    slot.store(nullptr);
    std::free(name);
    return;
  }
}

}  // namespace qutav::host
