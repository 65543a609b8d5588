// The interface language of the calling thread and the texts that come in it.
#pragma once

#include <cstdint>
#include <string>

namespace qutav {

using LanguageId = std::uint16_t;

inline constexpr LanguageId kEnglish = 1033;

class Language {
 public:
  virtual ~Language() = default;
  /// The calling thread's locale id (`GetThreadLocale`); the low 16 bits are a language id.
  virtual std::uint32_t ThreadLocale() = 0;
  /// The calling thread's interface language (`GetThreadUILanguage`). A new thread has its own.
  virtual LanguageId ThreadInterfaceLanguage() = 0;
  /// Switches the calling thread's interface language (`SetThreadUILanguage`) and returns the id
  /// that is in force afterwards.
  virtual LanguageId SetThreadInterfaceLanguage(LanguageId id) = 0;
  /// Copies string `id` of a module in the thread's interface language, English when that lacks it,
  /// to `buffer` of `capacity` units, the terminator included (`LoadStringW`). A longer string is
  /// cut. Returns the units copied without the terminator, 0 for an unknown id or module.
  virtual int LoadString(const std::u16string& module, std::uint32_t id, char16_t* buffer,
                         int capacity) = 0;
};

}  // namespace qutav
