#pragma once

#include <xercesc/parsers/XercesDOMParser.hpp>

namespace qutav {

/// A parser that no text can lead to harm its host:
///
/// - Elements nested deeper than any descriptor needs are refused. Reading text out of a DOM and
///   writing one are recursive: some hundred thousand open tags would overrun the stack.
/// - Entities that expand without end are refused (`SecurityManager`).
/// - Nothing but the text itself is read: an external entity, and a document type in another file
///   or on a server, are empty.
///
/// What is refused raises an exception, as malformed text does.
class GuardedParser final : public xercesc::XercesDOMParser {
 public:
  static constexpr unsigned kDeepest = 500;

  GuardedParser();

  void startDocument() override;
  void startElement(const xercesc::XMLElementDecl& declaration, unsigned int uri,
                    const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                    XMLSize_t attributeCount, bool isEmpty, bool isRoot) override;
  void endElement(const xercesc::XMLElementDecl& declaration, unsigned int uri, bool isRoot,
                  const XMLCh* prefix) override;

 private:
  unsigned depth_ = 0;
};

}  // namespace qutav
