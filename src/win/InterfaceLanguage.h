// The interface language: the host's, for the length of a script function.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Language.h"
#include "win/HostEnvironment.h"

namespace qutav {

/// The thread's language id at the entry of the latest script function.
extern LanguageId SavedLanguage;

/// The module whose resources hold the texts.
extern std::u16string ResourceModuleName;

/// The language id of a row of the language table, compared exactly; English for all other codes
/// and for none.
LanguageId LanguageIdForCode(const std::optional<std::u16string>& code);

/// Switches the calling thread's interface language to the host's. The two calls do not nest.
void EnterInterfaceLanguage(const HostCallContext& call);

/// Switches it to the language id that the thread's locale had at entry.
void LeaveInterfaceLanguage();

/// The host's language code; nothing when it has none.
std::optional<std::u16string> HostLanguageCode(const HostCallContext& call);

/// A text of the catalogue in the thread's interface language and its length; an unknown id gives
/// an empty text and 0.
int LoadResourceString(std::u16string& target, std::uint32_t id);

/// The same as a value.
std::u16string Message(std::uint32_t id);

}  // namespace qutav
