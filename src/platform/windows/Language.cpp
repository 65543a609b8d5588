#include "platform/Language.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

// String tables are kept in blocks of sixteen; each string stands behind its length.
constexpr std::uint32_t kBlockSize = 16;

// Some systems accept the switch and forget it; what they have accepted holds.
thread_local std::optional<LanguageId> switchedLanguage;

std::wstring_view StringInBlock(const wchar_t* block, std::uint32_t index) {
  for (; index > 0; --index) block += 1 + *block;
  return {block + 1, *block};
}

// The language is named, because `LoadStringW` may look for another one.
std::wstring_view FindString(HMODULE module, std::uint32_t id, LanguageId language) {
  const WORD name = static_cast<WORD>(id / kBlockSize + 1);
  const HRSRC resource = FindResourceExW(module, RT_STRING, MAKEINTRESOURCEW(name), language);
  const HGLOBAL loaded = resource == nullptr ? nullptr : LoadResource(module, resource);
  if (loaded == nullptr) return {};
  return StringInBlock(static_cast<const wchar_t*>(LockResource(loaded)), id % kBlockSize);
}

class WindowsLanguage final : public Language {
 public:
  std::uint32_t ThreadLocale() override { return GetThreadLocale(); }

  LanguageId ThreadInterfaceLanguage() override {
    return switchedLanguage.value_or(GetThreadUILanguage());
  }

  LanguageId SetThreadInterfaceLanguage(LanguageId id) override {
    if (SetThreadUILanguage(id) == id) switchedLanguage = id;
    return ThreadInterfaceLanguage();
  }

  int LoadString(const std::u16string& module, std::uint32_t id, char16_t* buffer,
                 int capacity) override {
    if (capacity < 1) return 0;
    std::wstring_view text;
    if (const HMODULE handle = GetModuleHandleW(Wide(module))) {
      text = FindString(handle, id, ThreadInterfaceLanguage());
      if (text.empty()) text = FindString(handle, id, kEnglish);
    }
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(capacity) - 1);
    std::copy_n(text.begin(), length, buffer);
    buffer[length] = u'\0';
    return static_cast<int>(length);
  }
};

}  // namespace

Language& SystemLanguage() {
  static WindowsLanguage language;
  return language;
}

}  // namespace qutav
