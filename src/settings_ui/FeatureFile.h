// The host's list of Android permissions as its file holds it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "descriptor/XercesForward.h"

namespace qutav {

struct Feature {
  std::u16string name;  ///< the permission without "android.permission."
  std::u16string description;
};

/// One for each `feature` of the document's `androidFeatures`, in order; nothing unless there is
/// exactly one of these. A feature that tells no name or no description has that of the one before.
std::optional<std::vector<Feature>> ReadFeatureRows(const xercesc::DOMDocument& document);

}  // namespace qutav
