#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "host/PublishRecord.h"

namespace qutav::host {

/// "Made /games/Game.apk, 123 KB, 1.2 s".
std::string MadeText(const std::filesystem::path& package, std::chrono::duration<double> duration);

/// "Device A1 (1 of 3)".
std::string DeviceHeading(const std::string& device, std::size_t number, std::size_t count);

/// That a debugger reaches one device only, as each is served by a library that counts its ports
/// anew.
std::string OneDebugPortText();

/// "Started /games/Game.apk, 123 KB, on A1, 9.1 s".
std::string StartedText(const std::filesystem::path& package, const std::string& device,
                        std::chrono::duration<double> duration);

/// "The package was not started on A1."
std::string NotStartedText(const std::string& device);

/// Why there is no package, as far as the messages that were shown do not say it already.
std::string NothingMadeText(const PublishRecord& record);

/// "512 bytes", "123 KB", "4.5 MB".
std::string SizeText(std::uintmax_t bytes);

}  // namespace qutav::host
