#include "host/TranscriptTail.h"

#include <chrono>
#include <utility>

namespace qutav::host {

TranscriptTail::TranscriptTail(const std::filesystem::path& transcript, Handler handler)
    : reader_(transcript),
      handler_(std::move(handler)),
      thread_([this](const std::stop_token& stop) { Follow(stop); }) {}

TranscriptTail::~TranscriptTail() { Finish(); }

void TranscriptTail::Finish() {
  if (!thread_.joinable()) return;
  thread_.request_stop();
  thread_.join();
}

void TranscriptTail::Follow(const std::stop_token& stop) {
  constexpr std::chrono::milliseconds kPause(100);
  bool stopping = false;
  do {
    // Asked before reading: what was written before the stop is still read.
    stopping = stop.stop_requested();
    for (const nlohmann::json& event : reader_.ReadNew()) handler_(event);
    std::unique_lock lock(mutex_);
    if (!stopping) wake_.wait_for(lock, stop, kPause, [] { return false; });
  } while (!stopping);
}

}  // namespace qutav::host
