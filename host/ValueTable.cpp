#include "host/ValueTable.h"

#include <cmath>
#include <utility>

namespace qutav::host {
namespace {

// Beyond this a double no longer tells neighbouring whole numbers apart.
constexpr double kGreatestWhole = 9007199254740991.0;

bool IsWholeNumber(double number) {
  return std::trunc(number) == number && std::abs(number) <= kGreatestWhole;
}

std::uint64_t WordOfWhole(double number) {
  return (static_cast<std::uint64_t>(static_cast<std::int64_t>(number)) << 1) | 1;
}

double WholeOfWord(std::uint64_t word) {
  return static_cast<double>(static_cast<std::int64_t>(word) >> 1);
}

}  // namespace

ValueTable::Scope::Scope(ValueTable& table)
    : table_(table), firstHandle_(table.nextHandle_), textCount_(table.texts_.size()) {}

ValueTable::Scope::~Scope() {
  table_.values_.erase(table_.values_.lower_bound(firstHandle_), table_.values_.end());
  while (table_.texts_.size() > textCount_) table_.texts_.pop_back();
}

std::uint64_t ValueTable::WordFor(const ScriptValue& value) {
  if (const auto* number = std::get_if<double>(&value); number && IsWholeNumber(*number)) {
    return WordOfWhole(*number);
  }
  const std::uint64_t handle = nextHandle_;
  nextHandle_ += 2;
  values_.emplace(handle, value);
  return handle;
}

std::optional<ScriptValue> ValueTable::ValueOf(std::uint64_t word) const {
  if ((word & 1) != 0) return WholeOfWord(word);
  const auto found = values_.find(word);
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

const char16_t* ValueTable::Keep(std::u16string text) {
  // A deque never moves its elements when it grows or shrinks at the end.
  return texts_.emplace_back(std::move(text)).c_str();
}

}  // namespace qutav::host
