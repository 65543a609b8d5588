#pragma once

#include <filesystem>
#include <ios>
#include <nlohmann/json.hpp>
#include <vector>

namespace qutav::host {

/// Reads the lines that are appended to a transcript from now on.
class TranscriptReader {
 public:
  explicit TranscriptReader(std::filesystem::path file);

  /// The events since the last call. A line that is not yet complete waits for its end; a line
  /// that is no JSON object is passed over.
  std::vector<nlohmann::json> ReadNew();

 private:
  std::filesystem::path file_;
  std::streamoff position_ = 0;
};

}  // namespace qutav::host
