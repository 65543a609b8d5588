#include "descriptor/DomSearch.h"

#include "platform/Text.h"

namespace qutav {

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::DOMNodeList;

std::u16string XmlName(const char* name) { return FromLocalCodePage(name); }

std::u16string TextOrEmpty(const XMLCh* text) { return text == nullptr ? u"" : text; }

DOMNode* FirstOfTag(const DOMDocument& document, const char* tag) {
  return document.getElementsByTagName(XmlName(tag).c_str())->item(0);
}

DOMNode* FirstOfTag(const DOMElement& element, const char* tag) {
  return element.getElementsByTagName(XmlName(tag).c_str())->item(0);
}

DOMElement* FirstElement(const DOMDocument& document, const char* tag) {
  return AsElement(FirstOfTag(document, tag));
}

DOMElement* FirstElement(const DOMElement& element, const char* tag) {
  return AsElement(FirstOfTag(element, tag));
}

bool IsUnder(const DOMNode& node, const char* parent) {
  const DOMNode* above = node.getParentNode();
  return above != nullptr && TextOrEmpty(above->getNodeName()) == XmlName(parent);
}

DOMElement* FirstElementUnder(const DOMDocument& document, const char* parent, const char* tag) {
  for (DOMElement* element : ElementsOf(*document.getElementsByTagName(XmlName(tag).c_str()))) {
    if (IsUnder(*element, parent)) return element;
  }
  return nullptr;
}

DOMElement* FindDirectChild(const DOMNode* node, const char* name) {
  if (node == nullptr) return nullptr;
  for (DOMElement* child : ChildElementsOf(*node)) {
    if (TextOrEmpty(child->getNodeName()) == XmlName(name)) return child;
  }
  return nullptr;
}

std::vector<DOMElement*> ElementsOf(const DOMNodeList& list) {
  std::vector<DOMElement*> elements;
  // Asking for the length would walk the whole tree again for each item.
  XMLSize_t i = 0;
  for (DOMNode* node = list.item(i); node != nullptr; node = list.item(++i)) {
    if (DOMElement* element = AsElement(node)) elements.push_back(element);
  }
  return elements;
}

std::vector<DOMElement*> ChildElementsOf(const DOMNode& node) {
  std::vector<DOMElement*> elements;
  for (DOMNode* child = node.getFirstChild(); child != nullptr; child = child->getNextSibling()) {
    if (DOMElement* element = AsElement(child)) elements.push_back(element);
  }
  return elements;
}

}  // namespace qutav
