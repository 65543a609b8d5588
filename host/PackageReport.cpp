#include "host/PackageReport.h"

#include <array>
#include <cstdio>
#include <system_error>

namespace qutav::host {
namespace {

std::string OneDecimal(double number) {
  std::array<char, 40> buffer;
  std::snprintf(buffer.data(), buffer.size(), "%.1f", number);
  return buffer.data();
}

}  // namespace

std::string MadeText(const std::filesystem::path& package, std::chrono::duration<double> duration) {
  std::error_code gone;
  const std::uintmax_t size = std::filesystem::file_size(package, gone);
  return "Made " + package.string() + ", " + SizeText(gone ? 0 : size) + ", " +
         OneDecimal(duration.count()) + " s";
}

std::string NothingMadeText(const PublishRecord& record) {
  if (!record.SheetWasLeft()) return "No package was made.";
  return "No package was made: the library asked for signing material.\n"
         "Give --certificate FILE, or --script FILE with an answer to the settings sheet.";
}

std::string SizeText(std::uintmax_t bytes) {
  constexpr std::uintmax_t kKilo = 1024;
  constexpr std::uintmax_t kMega = kKilo * kKilo;
  if (bytes < kKilo) return std::to_string(bytes) + " bytes";
  if (bytes < kMega) return std::to_string((bytes + kKilo / 2) / kKilo) + " KB";
  return OneDecimal(static_cast<double>(bytes) / static_cast<double>(kMega)) + " MB";
}

}  // namespace qutav::host
