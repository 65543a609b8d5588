#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>

#include "host/ScriptValue.h"

namespace qutav::host {

/// Turns script values into the opaque 64-bit words that the library is handed, and back.
///
/// A whole number n is the word 2n + 1, so that the number 0 is the word 1; every other value is
/// an even handle. Handles and kept texts live until the scope ends in which they were made; a
/// handle is never given out twice, so that a stale one cannot name another value.
class ValueTable {
 public:
  /// The length of one script function's call. Scopes nest.
  class Scope {
   public:
    explicit Scope(ValueTable& table);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    ValueTable& table_;
    std::uint64_t firstHandle_;
    std::size_t textCount_;
  };

  std::uint64_t WordFor(const ScriptValue& value);

  /// Nothing for a word that names no living value.
  std::optional<ScriptValue> ValueOf(std::uint64_t word) const;

  /// Keeps the text until the scope ends and gives its NUL-terminated address.
  const char16_t* Keep(std::u16string text);

 private:
  std::map<std::uint64_t, ScriptValue> values_;
  std::uint64_t nextHandle_ = 2;
  std::deque<std::u16string> texts_;
};

}  // namespace qutav::host
