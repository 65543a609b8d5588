#include "settings_ui/FeatureFile.h"

#include <xercesc/dom/DOM.hpp>

#include "descriptor/DomSearch.h"

namespace qutav {
namespace {

using xercesc::DOMElement;
using xercesc::DOMNode;

// Plain text or one CDATA section, with nothing else inside, gives a value.
void TakeOnlyChild(const DOMElement& element, std::u16string& value) {
  const DOMNode* child = element.getFirstChild();
  if (child == nullptr || child->getNextSibling() != nullptr) return;
  value = TextOrEmpty(child->getNodeValue());
}

void TakeValues(const DOMElement& element, Feature& feature) {
  for (const DOMElement* child : ChildElementsOf(element)) {
    const std::u16string name = TextOrEmpty(child->getNodeName());
    if (name == u"featureName") TakeOnlyChild(*child, feature.name);
    if (name == u"description") TakeOnlyChild(*child, feature.description);
  }
}

}  // namespace

std::optional<std::vector<Feature>> ReadFeatureRows(const xercesc::DOMDocument& document) {
  const auto* lists = document.getElementsByTagName(u"androidFeatures");
  if (lists->getLength() != 1) return {};
  std::vector<Feature> features;
  Feature current;  // what an element does not tell is kept from the one before
  for (const DOMElement* child : ChildElementsOf(*lists->item(0))) {
    if (TextOrEmpty(child->getNodeName()) != u"feature") continue;
    TakeValues(*child, current);
    features.push_back(current);
  }
  return features;
}

}  // namespace qutav
