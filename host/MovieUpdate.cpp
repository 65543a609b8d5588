#include "host/MovieUpdate.h"

#include <filesystem>
#include <system_error>

#include "host/MovieFile.h"
#include "host/RuntimeLevel.h"

namespace qutav::host {

bool BringMovieUpToDate(const CallOptions& options, const Document& document, Console& console) {
  if (!options.exportsMovie || !MovieIsOutdated(document)) return true;
  const std::filesystem::path movie = document.MoviePath();
  const auto level = MajorOfRuntimeLevel(options.common.runtimeLevel).value_or(0);
  const std::error_code error = ExportMovie(document, level, movie);
  if (error) {
    console.Message("The movie cannot be exported: " + movie.string() + ": " + error.message());
  }
  return !error;
}

}  // namespace qutav::host
