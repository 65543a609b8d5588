#include "win/DocumentPaths.h"

namespace qutav {

DocumentPathTexts DocumentPaths;

std::u16string BaseNameOfPath(const std::u16string& path) {
  const std::size_t backslash = path.rfind(u'\\');
  if (backslash == path.npos) return path;
  const std::size_t dot = path.rfind(u'.');
  if (dot == path.npos || dot <= backslash + 1) return path;
  return path.substr(backslash + 1, dot - backslash - 1);
}

std::u16string FolderOfPath(const std::u16string& path) {
  const std::size_t backslash = path.rfind(u'\\');
  return backslash == path.npos ? path : path.substr(0, backslash + 1);
}

}  // namespace qutav
