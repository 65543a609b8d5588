#pragma once

#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <nlohmann/json.hpp>
#include <stop_token>
#include <thread>

#include "host/TranscriptReader.h"

namespace qutav::host {

/// Hands each new event of a transcript to a handler while the library's call blocks the main
/// thread. The handler runs on the tail's own thread, one event at a time.
class TranscriptTail {
 public:
  using Handler = std::function<void(const nlohmann::json& event)>;

  TranscriptTail(const std::filesystem::path& transcript, Handler handler);
  ~TranscriptTail();
  TranscriptTail(const TranscriptTail&) = delete;
  TranscriptTail& operator=(const TranscriptTail&) = delete;

  /// Returns when every event written so far was handled; what the handler collected may then be
  /// read by the caller.
  void Finish();

 private:
  void Follow(const std::stop_token& stop);

  TranscriptReader reader_;
  Handler handler_;
  std::mutex mutex_;
  std::condition_variable_any wake_;
  std::jthread thread_;
};

}  // namespace qutav::host
