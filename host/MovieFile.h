#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

#include "host/Document.h"

namespace qutav::host {

/// A movie in the practice format: the three bytes "QMV", one byte with the major number of the
/// runtime level, then a JSON object with what the stage needs.
std::string MovieBytes(const Document& document, std::uint8_t runtimeLevel);

/// Writes the document's movie as a whole or not at all.
std::error_code ExportMovie(const Document& document, std::uint8_t runtimeLevel,
                            const std::filesystem::path& file);

/// Whether the movie is missing or older than the document.
bool MovieIsOutdated(const Document& document);

}  // namespace qutav::host
