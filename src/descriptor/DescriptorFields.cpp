// The generic accessors of `DescriptorDocument`.

#include <xercesc/dom/DOM.hpp>

#include "descriptor/DescriptorDocument.h"
#include "descriptor/DomSearch.h"
#include "descriptor/StandardErrors.h"
#include "platform/Text.h"

namespace qutav {

using xercesc::DOMElement;
using xercesc::DOMNode;

int DescriptorDocument::GetText(const char* tag, std::u16string& out) const {
  if (parser_ == nullptr) return -1;
  const DOMNode* node = Document() == nullptr ? nullptr : FirstOfTag(*Document(), tag);
  if (node == nullptr) return 1;
  const XMLCh* text = node->getTextContent();
  if (text == nullptr) return 3;
  out = Trimmed(text);
  return 0;
}

int DescriptorDocument::GetTextNarrow(const char* tag, std::string& out) const {
  if (parser_ == nullptr) return -1;
  const DOMNode* node = Document() == nullptr ? nullptr : FirstOfTag(*Document(), tag);
  if (node == nullptr) return 1;
  const XMLCh* text = node->getTextContent();
  if (text == nullptr) return 2;
  out = ToLocalCodePage(text);
  return 0;
}

int DescriptorDocument::GetChildText(const DOMElement* element, const char* tag,
                                     std::u16string& out) const {
  if (parser_ == nullptr) return -1;
  if (element == nullptr) return 1;
  const DOMNode* child = FirstOfTag(*element, tag);
  if (child == nullptr) return 2;
  const std::u16string text = TextOrEmpty(child->getTextContent());
  if (text.empty()) return 3;
  out = text;
  return 0;
}

int DescriptorDocument::GetChildTextNarrow(const DOMElement* element, const char* tag,
                                           std::string& out) const {
  std::u16string text;
  const int result = GetChildText(element, tag, text);
  if (result == 0) out = ToLocalCodePage(text);
  return result;
}

int DescriptorDocument::GetAttribute(const char* tag, const char* attribute,
                                     std::string& out) const {
  if (parser_ == nullptr) return -1;
  DOMNode* node = Document() == nullptr ? nullptr : FirstOfTag(*Document(), tag);
  if (node == nullptr) return 1;
  const DOMElement* element = AsElement(node);
  if (element == nullptr) return 2;
  const XMLCh* value = element->getAttribute(XmlName(attribute).c_str());
  if (value == nullptr) return 3;
  out = ToLocalCodePage(value);
  return 0;
}

bool DescriptorDocument::HasChild(const char* parentTag, const char* childTag) const {
  if (CheckRoot() != 0) return false;
  const DOMElement* parent = FirstElement(*Document(), parentTag);
  return parent != nullptr && FirstOfTag(*parent, childTag) != nullptr;
}

std::vector<DOMElement*> DescriptorDocument::ElementsOfTag(const char* tag) const {
  if (Document() == nullptr) return {};
  return ElementsOf(*Document()->getElementsByTagName(XmlName(tag).c_str()));
}

int DescriptorDocument::SetText(const char* tag, const std::u16string& value) {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  DOMNode* node = FirstOfTag(*Document(), tag);
  if (node == nullptr) {
    Root().appendChild(NewElement(tag, value));
    return 0;
  }
  DOMElement* element = AsElement(node);
  if (element == nullptr) return 2;
  element->setTextContent(value.c_str());
  return 0;
}

int DescriptorDocument::SetChildText(const char* parentTag, const char* childTag,
                                     const std::u16string& value) {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  DOMElement* parent = FirstElement(*Document(), parentTag);
  if (parent == nullptr) return 3;
  DOMNode* child = FirstOfTag(*parent, childTag);
  if (child == nullptr) {
    parent->appendChild(NewElement(childTag, value));
    return 0;
  }
  DOMElement* element = AsElement(child);
  if (element == nullptr) return 3;
  element->setTextContent(value.c_str());
  return 0;
}

int DescriptorDocument::SetGrandchildText(const char* parentName, const char* elementTag,
                                          const char* childTag, const std::u16string& value) {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  if (FirstOfTag(*Document(), elementTag) == nullptr) return 3;
  DOMElement* element = FirstElementUnder(*Document(), parentName, elementTag);
  if (element == nullptr) {
    DOMElement* parent = FirstElement(*Document(), parentName);
    if (parent == nullptr) return 3;
    element = Document()->createElement(XmlName(elementTag).c_str());
    parent->appendChild(element);
  }
  if (DOMElement* child = FirstElement(*element, childTag)) {
    child->setTextContent(value.c_str());
  } else {
    element->appendChild(NewElement(childTag, value));
  }
  return 0;
}

int DescriptorDocument::AppendChild(const char* parentTag, const char* childTag,
                                    const std::u16string& value) {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  DOMElement* parent = FirstElement(*Document(), parentTag);
  if (parent == nullptr) return 3;
  parent->appendChild(NewElement(childTag, value));
  return 0;
}

namespace {

// 0 also when there is nothing to remove; 3 for a null parent or a child that is no element.
int RemoveFirstDescendant(DOMElement* parent, const char* childTag) {
  if (parent == nullptr) return 3;
  DOMNode* child = FirstOfTag(*parent, childTag);
  if (child == nullptr) return 0;
  if (AsElement(child) == nullptr) return 3;
  WithStandardErrors([&] { parent->removeChild(child)->release(); });
  return 0;
}

}  // namespace

int DescriptorDocument::RemoveChild(const char* parentTag, const char* childTag) {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  return RemoveFirstDescendant(FirstElement(*Document(), parentTag), childTag);
}

int DescriptorDocument::RemoveGrandchild(const char* parentName, const char* elementTag,
                                         const char* childTag) {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  return RemoveFirstDescendant(FirstElementUnder(*Document(), parentName, elementTag), childTag);
}

int DescriptorDocument::ClearText(const char* tag) {
  if (parser_ == nullptr) return -1;
  DOMNode* node = Document() == nullptr ? nullptr : FirstOfTag(*Document(), tag);
  if (node == nullptr) return 1;
  DOMElement* element = AsElement(node);
  if (element == nullptr) return 2;
  element->setTextContent(nullptr);
  return 0;
}

int DescriptorDocument::SetAttribute(const char* tag, const char* attribute,
                                     const std::string& value) {
  if (parser_ == nullptr) return -1;
  DOMNode* node = Document() == nullptr ? nullptr : FirstOfTag(*Document(), tag);
  if (node == nullptr) return 1;
  DOMElement* element = AsElement(node);
  if (element == nullptr) return 2;
  element->setAttribute(XmlName(attribute).c_str(), FromLocalCodePage(value).c_str());
  return 0;
}

void DescriptorDocument::MigrateVersionElement() {
  if (CheckRoot() != 0) return;
  DOMElement* application = FirstElement(*Document(), "application");
  if (application == nullptr || FirstOfTag(*application, "version") == nullptr) return;
  std::u16string version;
  CurrentDescriptor.GetText("version", version);
  RemoveFirstDescendant(application, "version");
  SetText("versionNumber", version);
}

int SetChildTextIfValid(const char* parentTag, const char* childTag, const std::u16string& value) {
  const auto isEmpty = [](const char* name) { return name == nullptr || *name == '\0'; };
  if (isEmpty(parentTag) || isEmpty(childTag) || !CurrentDescriptor.IsParserReady()) return 1;
  CurrentDescriptor.SetChildText(parentTag, childTag, value);
  return 0;
}

}  // namespace qutav
