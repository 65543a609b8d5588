#include "descriptor/GuardedParser.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>

namespace qutav {
namespace {

// Whatever a text names beside itself is empty.
class NothingResolver final : public xercesc::EntityResolver {
 public:
  xercesc::InputSource* resolveEntity(const XMLCh*, const XMLCh*) override {
    static const XMLByte none = 0;
    return new xercesc::MemBufInputSource(&none, 0, "nothing");
  }
};

}  // namespace

GuardedParser::GuardedParser()
    : XercesDOMParser(nullptr, xercesc::XMLPlatformUtils::fgMemoryManager, nullptr) {
  static xercesc::SecurityManager expansionLimit;
  setSecurityManager(&expansionLimit);
  static NothingResolver nothing;
  setEntityResolver(&nothing);
}

void GuardedParser::startDocument() {
  depth_ = 0;
  XercesDOMParser::startDocument();
}

void GuardedParser::startElement(const xercesc::XMLElementDecl& declaration, unsigned int uri,
                                 const XMLCh* prefix,
                                 const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                                 XMLSize_t attributeCount, bool isEmpty, bool isRoot) {
  if (depth_ >= kDeepest) throw xercesc::SAXException("elements are nested too deep");
  ++depth_;  // an empty element ends in `endElement` too
  XercesDOMParser::startElement(declaration, uri, prefix, attributes, attributeCount, isEmpty,
                                isRoot);
}

void GuardedParser::endElement(const xercesc::XMLElementDecl& declaration, unsigned int uri,
                               bool isRoot, const XMLCh* prefix) {
  --depth_;
  XercesDOMParser::endElement(declaration, uri, isRoot, prefix);
}

}  // namespace qutav
