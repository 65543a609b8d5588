#include "host/ScriptValue.h"

#include <array>
#include <charconv>
#include <cmath>

#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

std::u16string NumberText(double number) {
  if (std::isnan(number)) return u"NaN";
  if (std::isinf(number)) return number > 0 ? u"Infinity" : u"-Infinity";
  if (number == 0) return u"0";
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
  return std::u16string(buffer.data(), end);
}

double NumberInText(const std::u16string& text) {
  const std::string bytes = ToUtf8(text);
  double number = 0;
  const char* last = bytes.data() + bytes.size();
  const auto [end, error] = std::from_chars(bytes.data(), last, number);
  return error == std::errc() && end == last ? number : 0;
}

}  // namespace

std::optional<std::u16string> TextOf(const ScriptValue& value) {
  if (const auto* text = std::get_if<std::u16string>(&value)) return *text;
  if (const auto* number = std::get_if<double>(&value)) return NumberText(*number);
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? u"true" : u"false";
  if (std::holds_alternative<ObjectId>(value)) return u"[object Object]";
  return std::nullopt;
}

std::u16string TextAt(const std::vector<ScriptValue>& arguments, std::size_t place) {
  return TextOf(arguments[place]).value_or(u"");
}

double NumberOf(const ScriptValue& value) {
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
  if (const auto* text = std::get_if<std::u16string>(&value)) return NumberInText(*text);
  return 0;
}

std::int32_t IntegerOf(const ScriptValue& value) {
  const double number = NumberOf(value);
  if (!std::isfinite(number)) return 0;
  const double wrapped = std::fmod(std::trunc(number), 4294967296.0);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::int64_t>(wrapped)));
}

bool BooleanOf(const ScriptValue& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag;
  if (const auto* number = std::get_if<double>(&value)) return *number != 0 && !std::isnan(*number);
  if (const auto* text = std::get_if<std::u16string>(&value)) return !text->empty();
  return std::holds_alternative<ObjectId>(value);
}

}  // namespace qutav::host
