// Places from which a device may download the runtime. The list is data of the host, one file for
// each language.
#pragma once

#include <string>
#include <vector>

#include "descriptor/DescriptorDocument.h"

namespace qutav {

struct MarketEntry {
  std::u16string name;  ///< what is shown
  std::u16string url;   ///< what is stored
};

/// Reads every element `market` that has a `name`, at any depth and in document order; a missing
/// `url` is empty. A file that cannot be read or parsed gives no entries. The reader keeps its
/// parser until `Close`.
void ReadMarkets(DescriptorDocument& reader, std::vector<MarketEntry>& markets,
                 const std::u16string& path);

}  // namespace qutav
