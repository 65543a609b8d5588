// Evaluating script text in the host and taking results back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "win/HostEnvironment.h"

namespace qutav {

/// What an evaluation gave: its status, 1 for success and 0 also when the host cannot evaluate, and
/// the value, 0 when there is none.
struct HostResult {
  std::int32_t status = 0;
  HostValue value = 0;
};

/// Evaluates script text in the host. It ends at its first NUL.
HostResult EvaluateHostScript(const HostCallContext& call, const std::u16string& script);

/// The value as text, whatever it holds; nothing when the host gives none.
std::optional<std::u16string> HostText(const HostCallContext& call, HostValue value);

/// The value as text, an empty one included; nothing only when the host gives no text at all.
std::optional<std::u16string> HostTextOrNull(const HostCallContext& call, HostValue value);

/// The text of a value that counts as present: it has text and is not the number 0.
std::optional<std::u16string> PresentHostText(const HostCallContext& call, HostValue value);

/// Evaluates and takes the text, with the rule of `HostText` and of `PresentHostText`; nothing when
/// the host cannot evaluate.
std::optional<std::u16string> EvaluateToText(const HostCallContext& call,
                                             const std::u16string& script);
std::optional<std::u16string> EvaluateToPresentText(const HostCallContext& call,
                                                    const std::u16string& script);

/// The value as an integer; `otherwise` when the host cannot convert.
std::int32_t HostInteger(const HostCallContext& call, HostValue value, std::int32_t otherwise);

}  // namespace qutav
