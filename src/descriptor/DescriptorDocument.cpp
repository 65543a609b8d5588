#include "descriptor/DescriptorDocument.h"

#include <cstdio>
#include <optional>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "descriptor/DomSearch.h"
#include "descriptor/FileInput.h"
#include "descriptor/GuardedParser.h"
#include "descriptor/StandardErrors.h"
#include "platform/Services.h"
#include "platform/Text.h"

namespace qutav {
namespace {

using xercesc::DOMConfiguration;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::XercesDOMParser;
using xercesc::XMLException;
using xercesc::XMLPlatformUtils;

constexpr char kExceptionLine[] = "Exception message is: %s\n";

void Print(const char* format, const XMLCh* message) {
  std::printf(format, ToLocalCodePage(TextOrEmpty(message)).c_str());
}

void AskForLayout(DOMConfiguration& configuration) {
  if (configuration.canSetParameter(xercesc::XMLUni::fgDOMWRTFormatPrettyPrint, true)) {
    configuration.setParameter(xercesc::XMLUni::fgDOMWRTFormatPrettyPrint, true);
  }
  if (configuration.canSetParameter(xercesc::XMLUni::fgDOMWRTXercesPrettyPrint, false)) {
    configuration.setParameter(xercesc::XMLUni::fgDOMWRTXercesPrettyPrint, false);
  }
}

template <typename Resource>
auto Releasing(Resource* resource) {
  return std::unique_ptr<Resource, void (*)(Resource*)>(resource,
                                                        [](Resource* r) { r->release(); });
}

// The serialized document; nothing when the library could not write all of it.
std::optional<std::string> Serialize(const DOMDocument& document) {
  const std::u16string feature = u"LS";
  auto* implementation = static_cast<xercesc::DOMImplementationLS*>(
      xercesc::DOMImplementationRegistry::getDOMImplementation(feature.c_str()));
  const auto serializer =
      Releasing(implementation->createLSSerializer(XMLPlatformUtils::fgMemoryManager));
  AskForLayout(*serializer->getDomConfig());
  xercesc::MemBufFormatTarget target;
  const auto output = Releasing(implementation->createLSOutput(XMLPlatformUtils::fgMemoryManager));
  output->setByteStream(&target);
  if (!serializer->write(&document, output.get())) return {};
  return std::string(reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen());
}

bool IsMilestone(const std::u16string& formatNamespace) {
  return formatNamespace.find(u"1.0.M5") != std::u16string::npos ||
         formatNamespace.find(u"1.0.M6") != std::u16string::npos;
}

bool IsLegacy(const std::u16string& formatNamespace) {
  return formatNamespace.find(u"1.0") != std::u16string::npos ||
         formatNamespace.find(u"1.1") != std::u16string::npos;
}

}  // namespace

DescriptorDocument CurrentDescriptor;
DescriptorDocument LaunchDescriptor;

DescriptorDocument::DescriptorDocument() = default;
DescriptorDocument::~DescriptorDocument() = default;

int DescriptorDocument::InitParser() {
  try {
    XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, nullptr,
                                 nullptr);
  } catch (const XMLException& exception) {
    Print("Error during initialization! :%s\n", exception.getMessage());
    return 1;
  }
  try {
    parser_ = new GuardedParser();
  } catch (const XMLException& exception) {
    Print("Error during creating parser! :%s\n", exception.getMessage());
    return 2;
  }
  // Without namespaces `xmlns` is an attribute like any other.
  parser_->setValidationScheme(XercesDOMParser::Val_Auto);
  parser_->setIncludeIgnorableWhitespace(false);
  parser_->setDoNamespaces(false);
  parser_->setDoSchema(false);
  errorHandler_ = std::make_unique<xercesc::HandlerBase>();
  parser_->setErrorHandler(errorHandler_.get());
  return 0;
}

bool DescriptorDocument::Parse(const std::u16string& path) {
  if (parser_ == nullptr) return false;  // it could not be made, which was told then
  try {
    const FileInput source(path);
    parser_->setIncludeIgnorableWhitespace(false);
    parser_->parse(source);
    return true;
  } catch (const XMLException& exception) {
    Print(kExceptionLine, exception.getMessage());
  } catch (const xercesc::DOMException& exception) {
    Print(kExceptionLine, exception.msg);
  } catch (...) {
    std::printf("Unexpected Exception \n");
  }
  loaded_ = false;
  return false;
}

int DescriptorDocument::ParseFile(const std::u16string& path) {
  if (!Parse(path)) return -1;
  loaded_ = true;
  return 0;
}

int DescriptorDocument::Load(const std::u16string& path) {
  if (!Parse(path)) return kLoadFailed;
  auto* application = FirstOfTag(*Document(), "application");
  if (application == nullptr) return kNoApplication;
  const DOMElement* element = AsElement(application);
  if (element == nullptr) return kNotAnElement;
  const XMLCh* value = element->getAttribute(u"xmlns");
  if (value == nullptr) return kNoNamespaceText;
  if (IsMilestone(value)) return kMilestoneFormat;
  legacyNamespace_ = IsLegacy(value);
  loaded_ = true;
  path_ = path;
  return kLoaded;
}

bool DescriptorDocument::IsLoadedFrom(const std::u16string& path) const {
  return loaded_ && path_ == path;
}

int DescriptorDocument::Save(const std::u16string& path) {
  if (Document() == nullptr) return -1;
  try {
    const auto bytes = WithStandardErrors([&] { return Serialize(*Document()); });
    // What could not be written out whole must not take the place of the author's file.
    if (!bytes) return 0;
    if (TheServices().files->Write(path, *bytes)) return 0;
    Print(kExceptionLine, (u"The file '" + path + u"' cannot be written").c_str());
  } catch (const XMLException& exception) {
    Print(kExceptionLine, exception.getMessage());
  }
  return -1;
}

int DescriptorDocument::Close() {
  delete parser_;
  parser_ = nullptr;
  errorHandler_.reset();
  loaded_ = false;
  legacyNamespace_ = false;
  path_.clear();
  return 0;
}

DOMDocument* DescriptorDocument::Document() const {
  return parser_ == nullptr ? nullptr : parser_->getDocument();
}

int DescriptorDocument::CheckRoot() const {
  if (parser_ == nullptr) return -1;
  if (Document() == nullptr) return 1;
  return Document()->getDocumentElement() == nullptr ? 2 : 0;
}

DOMElement& DescriptorDocument::Root() const { return *Document()->getDocumentElement(); }

DOMElement* DescriptorDocument::NewElement(const char* tag, const std::u16string& text) {
  DOMElement* element = Document()->createElement(XmlName(tag).c_str());
  element->setTextContent(text.c_str());
  return element;
}

}  // namespace qutav
