#include "host/TranscriptReader.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

namespace qutav::host {

TranscriptReader::TranscriptReader(std::filesystem::path file) : file_(std::move(file)) {
  std::error_code missing;
  const std::uintmax_t size = std::filesystem::file_size(file_, missing);
  if (!missing) position_ = static_cast<std::streamoff>(size);
}

std::vector<nlohmann::json> TranscriptReader::ReadNew() {
  std::vector<nlohmann::json> events;
  std::ifstream stream(file_, std::ios::binary);
  stream.seekg(position_);
  std::string line;
  while (std::getline(stream, line) && !stream.eof()) {
    position_ += static_cast<std::streamoff>(line.size()) + 1;
    nlohmann::json event = nlohmann::json::parse(line, nullptr, false);
    if (event.is_object()) events.push_back(std::move(event));
  }
  return events;
}

}  // namespace qutav::host
