#include "Descriptor.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLString.hpp>

#include "Files.h"

namespace launcher {
namespace {

namespace xml = xercesc;

constexpr XMLSize_t kEntityLimit = 1000;

std::string Utf8(const XMLCh* text) {
  const xml::TranscodeToStr utf8(text, "UTF-8");
  return {reinterpret_cast<const char*>(utf8.str()), utf8.length()};
}

std::string ReadAll(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("the descriptor cannot be opened: " + TextOf(file));
  return {std::istreambuf_iterator<char>(stream), {}};
}

// Nothing beside the text itself is read, and no text may grow without end.
void Parse(xml::XercesDOMParser& parser, xml::SecurityManager& limits, const std::string& text) {
  xml::HandlerBase throwing;
  limits.setEntityExpansionLimit(kEntityLimit);
  parser.setSecurityManager(&limits);
  parser.setErrorHandler(&throwing);
  parser.setLoadExternalDTD(false);
  parser.setDisableDefaultEntityResolution(true);
  parser.setDoNamespaces(true);
  const xml::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                      "descriptor");
  try {
    parser.parse(source);
  } catch (const xml::SAXException& error) {
    throw std::runtime_error("the descriptor is not well formed: " + Utf8(error.getMessage()));
  } catch (const xml::XMLException& error) {
    throw std::runtime_error("the descriptor cannot be read: " + Utf8(error.getMessage()));
  }
  parser.setErrorHandler(nullptr);
}

const xml::DOMElement* Child(const xml::DOMElement* parent, const std::string& name) {
  if (parent == nullptr) return nullptr;
  for (auto* child = parent->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling()) {
    if (Utf8(child->getLocalName()) == name) return child;
  }
  return nullptr;
}

std::string Text(const xml::DOMElement* element) {
  return element == nullptr ? std::string() : Utf8(element->getTextContent());
}

// The content is named as in a URI.
std::string Decoded(const std::string& uri) {
  std::string text;
  for (std::size_t i = 0; i < uri.size(); ++i) {
    const std::string digits = uri.substr(i + 1, 2);
    if (uri[i] == '%' && digits.size() == 2 &&
        digits.find_first_not_of("0123456789abcdefABCDEF") == digits.npos) {
      text += static_cast<char>(std::stoi(digits, nullptr, 16));
      i += 2;
    } else {
      text += uri[i];
    }
  }
  return text;
}

Descriptor Take(const xml::DOMElement* root, const std::filesystem::path& folder) {
  const std::string content = Text(Child(Child(root, "initialWindow"), "content"));
  if (content.empty()) throw std::runtime_error("the descriptor names no content");
  Descriptor descriptor{Text(Child(root, "id")), Text(Child(root, "name")),
                        folder / PathOf(Decoded(content))};
  if (!std::filesystem::is_regular_file(descriptor.content)) {
    throw std::runtime_error("the content is missing: " + TextOf(descriptor.content));
  }
  return descriptor;
}

// Xerces' own start and end.
struct XercesSession {
  XercesSession() { xml::XMLPlatformUtils::Initialize(); }
  ~XercesSession() { xml::XMLPlatformUtils::Terminate(); }
  XercesSession(const XercesSession&) = delete;
  XercesSession& operator=(const XercesSession&) = delete;
};

}  // namespace

Descriptor ReadDescriptor(const std::filesystem::path& file) {
  const std::string text = ReadAll(file);
  const XercesSession session;
  xml::SecurityManager limits;
  xml::XercesDOMParser parser;
  Parse(parser, limits, text);
  return Take(parser.getDocument()->getDocumentElement(), file.parent_path());
}

}  // namespace launcher
