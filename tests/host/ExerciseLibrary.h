#pragma once

#include <cstdint>
#include <string>

namespace qutav::exercise {

std::int32_t Evaluate(void* context, void* object, const std::u16string& script,
                      std::uint64_t& result);

/// The result's text; empty when it has none.
std::u16string EvaluateText(void* context, void* object, const std::u16string& script);

std::u16string NativePath(void* context, const char16_t* uri);

}  // namespace qutav::exercise

extern "C" {
/// The library's entry.
std::int32_t KR_InitWrapper(const void* table, std::uint32_t size);

/// What was logged since the last call, valid until the next one.
const char16_t* TakeExerciseLog();
}
