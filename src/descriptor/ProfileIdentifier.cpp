// What `DescriptorDocument` reads in a provisioning profile.

#include <xercesc/dom/DOM.hpp>

#include "descriptor/DescriptorDocument.h"
#include "descriptor/DomSearch.h"

namespace qutav {
namespace {

using xercesc::DOMElement;
using xercesc::DOMNode;

// The ten characters of a team and a dot.
constexpr std::size_t kTeamPrefixLength = 11;

std::u16string TextOfSecondSibling(const DOMNode& node) {
  const DOMNode* first = node.getNextSibling();
  const DOMNode* second = first == nullptr ? nullptr : first->getNextSibling();
  return second == nullptr ? std::u16string() : TextOrEmpty(second->getTextContent());
}

}  // namespace

std::optional<std::u16string> DescriptorDocument::ReadApplicationIdentifier() const {
  if (CheckRoot() != 0) return {};
  for (const DOMElement* key : ElementsOf(*Document()->getElementsByTagName(u"key"))) {
    if (TextOrEmpty(key->getTextContent()) != u"application-identifier") continue;
    const std::u16string value = TextOfSecondSibling(*key);
    if (value.size() > kTeamPrefixLength) return value.substr(kTeamPrefixLength);
  }
  return {};
}

}  // namespace qutav
