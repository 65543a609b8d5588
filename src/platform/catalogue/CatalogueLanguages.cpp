#include "platform/catalogue/CatalogueLanguages.h"

#include <algorithm>

#include "platform/Catalogue.h"
#include "platform/Language.h"

namespace qutav {
namespace {

constexpr std::u16string_view kModule = u"QuTavAndroidExt";

thread_local LanguageId threadInterfaceLanguage = kEnglish;

const CatalogueText* FindText(LanguageId language, std::uint32_t id) {
  const auto* end = kCatalogue + kCatalogueSize;
  const auto* row = std::find_if(kCatalogue, end, [&](const CatalogueLanguage& candidate) {
    return candidate.language == language;
  });
  if (row == end) return nullptr;
  const auto* last = row->texts + row->count;
  const auto* text = std::lower_bound(
      row->texts, last, id,
      [](const CatalogueText& entry, std::uint32_t wanted) { return entry.id < wanted; });
  return text != last && text->id == id ? text : nullptr;
}

class CatalogueLanguages final : public Language {
 public:
  // A thread of this service has no locale; English stands for it.
  std::uint32_t ThreadLocale() override { return kEnglish; }

  LanguageId ThreadInterfaceLanguage() override { return threadInterfaceLanguage; }

  LanguageId SetThreadInterfaceLanguage(LanguageId id) override {
    threadInterfaceLanguage = id;
    return id;
  }

  int LoadString(const std::u16string& module, std::uint32_t id, char16_t* buffer,
                 int capacity) override {
    if (module != kModule || capacity < 1) return 0;
    const CatalogueText* text = FindText(threadInterfaceLanguage, id);
    if (text == nullptr) text = FindText(kEnglish, id);
    const std::size_t room = static_cast<std::size_t>(capacity) - 1;
    const std::size_t length = text == nullptr ? 0 : std::min(text->length, room);
    if (length > 0) std::copy_n(text->text, length, buffer);
    buffer[length] = u'\0';
    return static_cast<int>(length);
  }
};

}  // namespace

Language& CatalogueLanguageService() {
  static CatalogueLanguages languages;
  return languages;
}

}  // namespace qutav
