// The Android manifest fragment of `DescriptorDocument`: a text that is an XML document of its own.

#include <cstdio>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/SAXException.hpp>

#include "descriptor/DescriptorDocument.h"
#include "descriptor/DomSearch.h"
#include "descriptor/GuardedParser.h"
#include "platform/Text.h"

namespace qutav {
namespace {

using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XercesDOMParser;

constexpr std::u16string_view kPermissionPrefix = u"android.permission.";

bool MentionsInternetPermission(const DOMElement& android) {
  for (const DOMElement* child : ChildElementsOf(android)) {
    // A match at the very start does not count.
    const std::size_t at =
        TextOrEmpty(child->getTextContent()).find(u"android.permission.INTERNET");
    if (at != std::u16string::npos && at > 0) return true;
  }
  return false;
}

// The text of the CDATA section; null without one.
const XMLCh* FragmentText(const DOMNode* manifestAdditions) {
  if (manifestAdditions == nullptr) return nullptr;
  for (const DOMNode* node = manifestAdditions->getFirstChild(); node != nullptr;
       node = node->getNextSibling()) {
    if (node->getNodeType() == DOMNode::CDATA_SECTION_NODE) return node->getNodeValue();
  }
  return nullptr;
}

std::unique_ptr<XercesDOMParser> NewFragmentParser() {
  try {
    std::unique_ptr<XercesDOMParser> parser = std::make_unique<GuardedParser>();
    parser->setDoSchema(false);
    parser->setDoNamespaces(false);
    parser->setIncludeIgnorableWhitespace(false);
    return parser;
  } catch (const xercesc::XMLException& exception) {
    std::printf("Error during creating parser! :%s\n",
                ToLocalCodePage(TextOrEmpty(exception.getMessage())).c_str());
    return nullptr;
  }
}

// The fragment below a root of its own; null when it does not parse. Without an error handler the
// parser keeps quiet and leaves what stands before the error, which must not pass for the whole.
const DOMElement* ParseFragment(XercesDOMParser& parser, const std::u16string& fragment) {
  const std::string text = ToLocalCodePage(u"<plist>" + fragment + u"</plist>");
  const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()),
                                          text.size(), "cDataBuffer");
  try {
    parser.parse(source);
  } catch (const xercesc::XMLException&) {
    return nullptr;
  } catch (const xercesc::SAXException&) {
    return nullptr;
  }
  return parser.getErrorCount() == 0 ? parser.getDocument()->getDocumentElement() : nullptr;
}

// Any one character of the prefix makes a value a permission, and its short name is cut off by
// position: other vendors' names lose their first nineteen characters, whatever these are.
void AppendPermission(const std::u16string& value, std::vector<std::u16string>& permissions) {
  if (value.find_first_of(kPermissionPrefix) == value.npos) return;
  permissions.push_back(value.substr(kPermissionPrefix.size()));
}

void AppendPermissionsOf(const DOMElement& usesPermission,
                         std::vector<std::u16string>& permissions) {
  const auto* attributes = usesPermission.getAttributes();
  for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
    const DOMNode* attribute = attributes->item(i);
    if (TextOrEmpty(attribute->getNodeName()) == u"android:name") {
      AppendPermission(TextOrEmpty(attribute->getNodeValue()), permissions);
    }
  }
}

std::u16string BuildFragment(const std::vector<std::u16string>& permissions) {
  std::u16string fragment = u"<manifest>\n";
  for (const std::u16string& name : permissions) {
    fragment += u"<uses-permission android:name=\"";
    fragment += kPermissionPrefix;
    fragment += name + u"\"/>\n";
  }
  return fragment + u"</manifest>";
}

}  // namespace

bool DescriptorDocument::HasInternetPermission() const {
  if (CheckRoot() != 0) return false;
  for (const DOMElement* android : ElementsOf(*Root().getElementsByTagName(u"android"))) {
    if (IsUnder(*android, "application") && MentionsInternetPermission(*android)) return true;
  }
  return false;
}

std::vector<std::u16string> DescriptorDocument::GetManifestPermissions() const {
  std::vector<std::u16string> permissions;
  if (CheckRoot() != 0) return permissions;
  const DOMElement* android = FindDirectChild(&Root(), "android");
  const XMLCh* fragment = FragmentText(FindDirectChild(android, "manifestAdditions"));
  if (fragment == nullptr) return permissions;
  const auto parser = NewFragmentParser();
  if (parser == nullptr) return permissions;
  const DOMElement* manifest = FindDirectChild(ParseFragment(*parser, fragment), "manifest");
  if (manifest == nullptr) return permissions;
  for (const DOMElement* child : ChildElementsOf(*manifest)) {
    if (TextOrEmpty(child->getNodeName()) == u"uses-permission") {
      AppendPermissionsOf(*child, permissions);
    }
  }
  return permissions;
}

bool DescriptorDocument::SetManifestPermissions(const std::vector<std::u16string>& permissions) {
  if (CheckRoot() != 0) return false;
  const auto childOf = [this](DOMElement& parent, const char* name) -> DOMElement& {
    if (DOMElement* child = FindDirectChild(&parent, name)) return *child;
    DOMElement* fresh = Document()->createElement(XmlName(name).c_str());
    parent.appendChild(fresh);
    return *fresh;
  };
  DOMElement& additions = childOf(childOf(Root(), "android"), "manifestAdditions");
  while (DOMNode* old = additions.getFirstChild()) additions.removeChild(old)->release();
  additions.appendChild(Document()->createCDATASection(BuildFragment(permissions).c_str()));
  return true;
}

}  // namespace qutav
