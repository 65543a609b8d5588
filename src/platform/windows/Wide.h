// The system's wide text is our UTF-16 under another type.
#pragma once

#include <string>
#include <string_view>

namespace qutav {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* Wide(const std::u16string& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

/// The text's own units, to be filled by the system.
inline wchar_t* WideBuffer(std::u16string& text) { return reinterpret_cast<wchar_t*>(text.data()); }

inline std::u16string FromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

}  // namespace qutav
