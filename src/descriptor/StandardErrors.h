// Exceptions of the DOM in words that the floors above understand.
#pragma once

#include <stdexcept>
#include <xercesc/dom/DOMException.hpp>

#include "descriptor/DomSearch.h"
#include "platform/Text.h"

namespace qutav {

/// Runs an operation on a DOM. Its `DOMException`, which is no `std::exception`, leaves as a
/// `std::runtime_error` with the same message in the local code page. All else passes as it is.
template <typename Operation>
auto WithStandardErrors(Operation operation) {
  try {
    return operation();
  } catch (const xercesc::DOMException& exception) {
    throw std::runtime_error(ToLocalCodePage(TextOrEmpty(exception.getMessage())));
  }
}

}  // namespace qutav
