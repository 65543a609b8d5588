#include "host/MovieFile.h"

#include <nlohmann/json.hpp>
#include <optional>

#include "host/AtomicFile.h"
#include "host/FileStamp.h"

namespace qutav::host {

std::string MovieBytes(const Document& document, std::uint8_t runtimeLevel) {
  const StageSize stage = document.Stage();
  const nlohmann::ordered_json payload = {{"width", stage.width},
                                          {"height", stage.height},
                                          {"scriptVersion", document.ScriptVersion()},
                                          {"debug", document.DebugFlag()}};
  return std::string("QMV") + static_cast<char>(runtimeLevel) + payload.dump();
}

std::error_code ExportMovie(const Document& document, std::uint8_t runtimeLevel,
                            const std::filesystem::path& file) {
  return WriteFileAtomically(file, MovieBytes(document, runtimeLevel));
}

bool MovieIsOutdated(const Document& document) {
  const std::optional<FileStamp> movie = StampOf(document.MoviePath());
  const std::optional<FileStamp> source = StampOf(document.Path());
  return !movie || (source && movie->time < source->time);
}

}  // namespace qutav::host
