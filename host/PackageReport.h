#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>

#include "host/PublishRecord.h"

namespace qutav::host {

/// "Made /games/Game.apk, 123 KB, 1.2 s".
std::string MadeText(const std::filesystem::path& package, std::chrono::duration<double> duration);

/// Why there is no package, as far as the messages that were shown do not say it already.
std::string NothingMadeText(const PublishRecord& record);

/// "512 bytes", "123 KB", "4.5 MB".
std::string SizeText(std::uintmax_t bytes);

}  // namespace qutav::host
