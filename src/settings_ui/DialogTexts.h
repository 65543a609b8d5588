// Ids of the dialogs' titles and labels in the catalogue.
#pragma once

#include <cstdint>

namespace qutav::texts {

inline constexpr std::uint32_t kProgressText = 9001;
inline constexpr std::uint32_t kProgressCancel = 9002;

inline constexpr std::uint32_t kTimestampTitle = 9010;
inline constexpr std::uint32_t kTimestampError = 9011;
inline constexpr std::uint32_t kTimestampConsequence = 9012;
inline constexpr std::uint32_t kTimestampDisable = 9013;
inline constexpr std::uint32_t kTimestampRetry = 9014;
inline constexpr std::uint32_t kTimestampCancel = 9015;

inline constexpr std::uint32_t kPasswordTitle = 9020;
inline constexpr std::uint32_t kPasswordLabel = 9021;
inline constexpr std::uint32_t kPasswordRemember = 9022;
inline constexpr std::uint32_t kPasswordOk = 9023;
inline constexpr std::uint32_t kPasswordCancel = 9024;

inline constexpr std::uint32_t kSheetOk = 9030;
inline constexpr std::uint32_t kSheetCancel = 9031;
inline constexpr std::uint32_t kSheetHelp = 9032;

}  // namespace qutav::texts
