// The texts of all languages as the build made them from resources/messages.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qutav {

struct CatalogueText {
  std::uint32_t id;
  const char16_t* text;
  std::size_t length;
};

struct CatalogueLanguage {
  std::uint16_t language;
  const CatalogueText* texts;  ///< ascending by id
  std::size_t count;
};

/// Defined in the generated source.
extern const CatalogueLanguage kCatalogue[];
extern const std::size_t kCatalogueSize;

}  // namespace qutav
