#include "descriptor/Markets.h"

#include <xercesc/dom/DOM.hpp>

#include "descriptor/DomSearch.h"
#include "platform/Text.h"

namespace qutav {
namespace {

// What the local code page lacks is lost.
std::u16string AttributeText(const xercesc::DOMElement& element, const char* name) {
  const std::u16string text = TextOrEmpty(element.getAttribute(XmlName(name).c_str()));
  return FromLocalCodePage(ToLocalCodePage(text));
}

}  // namespace

void ReadMarkets(DescriptorDocument& reader, std::vector<MarketEntry>& markets,
                 const std::u16string& path) {
  markets.clear();
  if (reader.InitParser() != 0 || reader.ParseFile(path) != 0) return;
  for (const xercesc::DOMElement* element : reader.ElementsOfTag("market")) {
    MarketEntry market{AttributeText(*element, "name"), AttributeText(*element, "url")};
    if (!market.name.empty()) markets.push_back(std::move(market));
  }
}

}  // namespace qutav
