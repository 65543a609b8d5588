#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qutav::host {

/// The major number of a runtime level such as "26.0"; nothing unless the text is numbers with
/// dots between them and the first one fits a byte.
std::optional<std::uint8_t> MajorOfRuntimeLevel(std::string_view level);

}  // namespace qutav::host
