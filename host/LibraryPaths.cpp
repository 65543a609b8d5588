#include "host/LibraryPaths.h"

#include <sstream>

#include "host/NativePath.h"
#include "host/TextEncoding.h"

namespace qutav::host {

std::u16string AbsoluteLibraryPath(const Document& document) {
  std::istringstream pieces(document.ExternalLibraryPath());
  std::u16string text;
  std::string piece;
  while (std::getline(pieces, piece, ';')) {
    if (piece.empty()) continue;
    const auto named = FromNativeForm(FromUtf8(piece));
    text += ToNativeForm((document.Path().parent_path() / named).lexically_normal());
    text += u';';
  }
  return text;
}

}  // namespace qutav::host
