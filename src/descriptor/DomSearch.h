// The four searches on which all accessors of a descriptor rest. Every result may be null.
#pragma once

#include <string>
#include <vector>
#include <xercesc/dom/DOM.hpp>

namespace qutav {

/// A narrow name, in the local code page, as Xerces wants it.
std::u16string XmlName(const char* name);

/// Text that Xerces gives; empty for null.
std::u16string TextOrEmpty(const XMLCh* text);

/// The first node of a tag in document order, anywhere below the node.
xercesc::DOMNode* FirstOfTag(const xercesc::DOMDocument& document, const char* tag);
xercesc::DOMNode* FirstOfTag(const xercesc::DOMElement& element, const char* tag);

/// The same as an element; null also when it is none.
xercesc::DOMElement* FirstElement(const xercesc::DOMDocument& document, const char* tag);
xercesc::DOMElement* FirstElement(const xercesc::DOMElement& element, const char* tag);

/// The first element of a tag whose parent has that name.
xercesc::DOMElement* FirstElementUnder(const xercesc::DOMDocument& document, const char* parent,
                                       const char* tag);

/// Whether the node's parent has that name.
bool IsUnder(const xercesc::DOMNode& node, const char* parent);

/// The first child element of that name; null for a null node.
xercesc::DOMElement* FindDirectChild(const xercesc::DOMNode* node, const char* name);

/// The items of a list that are elements, in its order. The list may change under the result.
std::vector<xercesc::DOMElement*> ElementsOf(const xercesc::DOMNodeList& list);

/// The child elements of a node, likewise.
std::vector<xercesc::DOMElement*> ChildElementsOf(const xercesc::DOMNode& node);

inline xercesc::DOMElement* AsElement(xercesc::DOMNode* node) {
  return dynamic_cast<xercesc::DOMElement*>(node);
}

}  // namespace qutav
