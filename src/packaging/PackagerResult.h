// What the packaging tool's exit code and output mean to the user.
#pragma once

#include <cstdint>
#include <string>

namespace qutav {

/// The classified outcome of one attempt. Texts are in the interface language.
struct PackagerResult {
  std::u16string head;    ///< the main text; empty: nothing to tell
  std::u16string detail;  ///< behind the head, beginning with a line feed unless empty
};

/// The exit code by which the tool says that the timestamp server cannot be reached.
inline constexpr std::int32_t kTimestampServerUnreachable = 10;

/// Classifies an exit code and the tool's output, of which the first 2000 units count. A success
/// without output, and the timestamp code, give an empty result.
PackagerResult ClassifyPackagerOutput(std::int32_t exitCode, const std::u16string& output);

/// The text of the warning box for a result with a head.
std::u16string PackagerReport(std::int32_t exitCode, bool postPublishOk,
                              const PackagerResult& result);

}  // namespace qutav
