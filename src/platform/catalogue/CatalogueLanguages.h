#pragma once

namespace qutav {

class Language;

/// The interface language where the system has none: each thread keeps its own, and the texts come
/// from the constant tables of the catalogue.
Language& CatalogueLanguageService();

}  // namespace qutav
