#include "host/FileStamp.h"

#include <system_error>

namespace qutav::host {

std::optional<FileStamp> StampOf(const std::filesystem::path& file) {
  std::error_code timeError;
  std::error_code sizeError;
  FileStamp stamp{std::filesystem::last_write_time(file, timeError),
                  std::filesystem::file_size(file, sizeError)};
  if (timeError || sizeError) return std::nullopt;
  return stamp;
}

}  // namespace qutav::host
