#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace qutav::host {

/// An object that the script engine holds for the host.
struct ObjectId {
  std::size_t index = 0;
  bool operator==(const ObjectId&) const = default;
};

/// A script value outside the engine. Undefined and null are both the first alternative.
using ScriptValue = std::variant<std::monostate, bool, double, std::u16string, ObjectId>;

/// The value as text; nothing for undefined and null.
std::optional<std::u16string> TextOf(const ScriptValue& value);

/// The text of an argument; empty for undefined and null.
std::u16string TextAt(const std::vector<ScriptValue>& arguments, std::size_t place);

/// The value as a number; text that is not wholly a decimal number is 0.
double NumberOf(const ScriptValue& value);

/// The value as the script language's 32-bit integer: fractions are cut, greater numbers wrap.
std::int32_t IntegerOf(const ScriptValue& value);

/// The script language's truth of the value.
bool BooleanOf(const ScriptValue& value);

}  // namespace qutav::host
