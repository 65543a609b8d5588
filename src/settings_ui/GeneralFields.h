// What several pages do alike with their fields, most of all both General pages.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "framework/Control.h"

namespace qutav {

/// Text of the first element of a tag in `CurrentDescriptor`; nothing when it cannot be read.
std::optional<std::u16string> DescriptorText(const char* tag);

/// Fills a field from an element; a missing one leaves the field alone.
void LoadField(Edit& field, const char* tag);

/// Whether an element holds one text per language; a page leaves such an element to its author.
bool IsLocalised(const char* tag);

/// Disables the field of an element with one text per language; for any other that can be read
/// fills and enables it. True when the field was filled.
bool LoadLocalisableField(Edit& field, const char* tag);

/// Whether an application id can be stored. A refused one has been shown.
bool AcceptApplicationId(const std::u16string& id);

/// Lets the user choose where the package goes, and shows the path with forward slashes.
/// `filterName` is the catalogue's id of what packages are called.
void BrowseOutputFile(Edit& field, const std::u16string& defaultExtension,
                      std::uint32_t filterName);

/// The field's text as it is stored: its first 256 units with forward slashes.
std::u16string OutputFileOf(const Edit& field);

/// Writes a text to the settings; true when it is another than was there.
bool StoreSetting(const std::u16string& key, const std::u16string& value);

}  // namespace qutav
