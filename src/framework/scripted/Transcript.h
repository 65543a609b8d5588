#pragma once

#include <memory>
#include <mutex>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

namespace qutav {

/// Where everything that is shown goes. Any thread may write.
class Transcript {
 public:
  /// JSON lines, appended to a file.
  explicit Transcript(const std::string& path);
  /// Plain text for a person, on a stream that outlives this.
  explicit Transcript(std::ostream& console);

  void Write(const nlohmann::ordered_json& event);

 private:
  std::mutex mutex_;
  std::unique_ptr<std::ostream> file_;
  std::ostream* console_ = nullptr;
};

}  // namespace qutav
