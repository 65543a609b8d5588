#pragma once

#include <string>

#include "host/Document.h"

namespace qutav::host {

/// The document's external library path with every piece absolute and in Windows form. A piece
/// that stayed relative would be looked for in the current folder first, and would keep its
/// slashes, from which the library takes no base name.
std::u16string AbsoluteLibraryPath(const Document& document);

}  // namespace qutav::host
