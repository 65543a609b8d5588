// Icons and file types of `DescriptorDocument`.

#include <algorithm>
#include <xercesc/dom/DOM.hpp>

#include "descriptor/DescriptorDocument.h"
#include "descriptor/DomSearch.h"
#include "platform/Text.h"
#include "support/RuntimeVersion.h"

namespace qutav {
namespace {

using xercesc::DOMElement;
using xercesc::DOMNode;

constexpr const char* kFileTypeImages[] = {"image128x128", "image48x48", "image32x32",
                                           "image16x16"};

// The icons that packaging takes first. The smaller sizes come behind them through the general
// walk; the packager's command shows that order.
std::vector<const char*> ApplicationIconNames() {
  std::vector<const char*> names = {"image192x192", "image144x144", "image96x96", "image72x72"};
  if (!RuntimeIsAtLeast(u"TAV3.7")) names.erase(names.begin());
  return names;
}

bool NamesListedIcon(const DOMElement& image, const std::vector<const char*>& names) {
  const std::u16string name = TextOrEmpty(image.getNodeName());
  return std::any_of(names.begin(), names.end(),
                     [&](const char* listed) { return EqualsIgnoringCase(name, XmlName(listed)); });
}

}  // namespace

int DescriptorDocument::GetApplicationIcon(const char* name, std::u16string& out) const {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  constexpr std::size_t kLongestPath = 255;
  for (const DOMElement* icon : ElementsOf(*Root().getElementsByTagName(u"icon"))) {
    std::string path;
    if (!IsUnder(*icon, "application") || GetChildTextNarrow(icon, name, path) != 0) continue;
    out = Trimmed(FromLocalCodePage(path).substr(0, kLongestPath));
    return 0;
  }
  return 3;
}

void RemoveApplicationIcons() { CurrentDescriptor.RemoveIconsUnderApplication(); }

void DescriptorDocument::RemoveIconsUnderApplication() {
  if (CheckRoot() != 0) return;
  for (DOMElement* icon : ElementsOf(*Root().getElementsByTagName(u"icon"))) {
    if (!IsUnder(*icon, "application")) continue;
    // The index runs on while the list shrinks: each removal pulls the next node onto the index, so
    // that only white space between the images lets all of them go.
    const XMLSize_t count = icon->getChildNodes()->getLength();
    for (XMLSize_t i = 0; i < count; ++i) {
      const DOMElement* image = AsElement(icon->getChildNodes()->item(i));
      if (image == nullptr || TextOrEmpty(image->getTextContent()).empty()) continue;
      RemoveGrandchild("application", "icon", ToLocalCodePage(image->getNodeName()).c_str());
    }
  }
}

void DescriptorDocument::CollectIconImages(const DOMElement& icon,
                                           std::vector<std::u16string>& list) const {
  const std::vector<const char*> names = ApplicationIconNames();
  for (const char* name : names) {
    std::string path;
    if (GetChildTextNarrow(&icon, name, path) == 0) list.push_back(FromLocalCodePage(path));
  }
  for (const DOMElement* image : ChildElementsOf(icon)) {
    const std::u16string path = TextOrEmpty(image->getTextContent());
    if (!path.empty() && !NamesListedIcon(*image, names)) list.push_back(path);
  }
}

int DescriptorDocument::CollectPackagedImages(std::vector<std::u16string>& list) const {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  for (const DOMElement* icon : ElementsOf(*Root().getElementsByTagName(u"icon"))) {
    if (IsUnder(*icon, "application") && icon->hasChildNodes()) CollectIconImages(*icon, list);
  }
  std::vector<DOMNode*> types;
  if (const int missing = FindFileTypes(types); missing != 0) return missing;
  for (DOMNode* type : types) {
    for (const char* name : kFileTypeImages) {
      std::string path;
      if (GetChildTextNarrow(AsElement(type), name, path) == 0) {
        list.push_back(FromLocalCodePage(path));
      }
    }
  }
  return 0;
}

int DescriptorDocument::FindFileTypes(std::vector<DOMNode*>& types) const {
  if (const int missing = CheckRoot(); missing != 0) return missing;
  const DOMElement* fileTypes = FirstElement(*Document(), "fileTypes");
  if (fileTypes == nullptr) return 3;
  const auto elements = ElementsOf(*fileTypes->getElementsByTagName(u"fileType"));
  types.assign(elements.begin(), elements.end());
  return types.empty() ? 4 : 0;
}

int DescriptorDocument::GetFileTypeList(std::u16string& out) const {
  std::vector<DOMNode*> types;
  if (const int missing = FindFileTypes(types); missing != 0) return missing;
  out.clear();
  for (DOMNode* type : types) {
    out += u";";
    const DOMElement* element = AsElement(type);
    if (element == nullptr) continue;
    if (const DOMNode* name = FirstOfTag(*element, "name")) {
      out += TextOrEmpty(name->getTextContent());
    }
    if (const DOMNode* extension = FirstOfTag(*element, "extension")) {
      out += u"(" + TextOrEmpty(extension->getTextContent()) + u")";
    }
  }
  return 0;
}

int DescriptorDocument::GetFileType(const std::u16string& name, FileTypeRecord& record) const {
  std::vector<DOMNode*> types;
  if (const int missing = FindFileTypes(types); missing != 0) return missing;
  const auto match = std::find_if(types.begin(), types.end(), [&](DOMNode* type) {
    const DOMElement* element = AsElement(type);
    const DOMNode* child = element == nullptr ? nullptr : FirstOfTag(*element, "name");
    return child != nullptr && TextOrEmpty(child->getTextContent()) == name;
  });
  if (match == types.end()) return 5;
  const DOMElement* type = AsElement(*match);
  GetChildTextNarrow(type, "name", record.name);
  GetChildTextNarrow(type, "extension", record.extension);
  GetChildText(type, "description", record.description);
  GetChildText(type, "contentType", record.contentType);
  GetChildText(type, "image16x16", record.image16x16);
  GetChildText(type, "image32x32", record.image32x32);
  GetChildText(type, "image48x48", record.image48x48);
  GetChildText(type, "image128x128", record.image128x128);
  return 0;
}

}  // namespace qutav
