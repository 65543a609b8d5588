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

std::string WithSize(const std::filesystem::path& package) {
  std::error_code gone;
  const std::uintmax_t size = std::filesystem::file_size(package, gone);
  return package.string() + ", " + SizeText(gone ? 0 : size);
}

std::string Seconds(std::chrono::duration<double> duration) {
  return OneDecimal(duration.count()) + " s";
}

std::string OnDevice(const std::string& device) {
  return "on " + (device.empty() ? "the first device" : device);
}

}  // namespace

std::string MadeText(const std::filesystem::path& package, std::chrono::duration<double> duration) {
  return "Made " + WithSize(package) + ", " + Seconds(duration);
}

std::string DeviceHeading(const std::string& device, std::size_t number, std::size_t count) {
  return "Device " + device + " (" + std::to_string(number) + " of " + std::to_string(count) + ")";
}

std::string OneDebugPortText() {
  return "All devices use the same debug port: the debugger reaches the last one that is served.";
}

std::string StartedText(const std::filesystem::path& package, const std::string& device,
                        std::chrono::duration<double> duration) {
  return "Started " + WithSize(package) + ", " + OnDevice(device) + ", " + Seconds(duration);
}

std::string NotStartedText(const std::string& device) {
  return "The package was not started " + OnDevice(device) + ".";
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
