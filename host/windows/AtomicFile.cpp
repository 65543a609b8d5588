#include "host/AtomicFile.h"

#include "host/NativePath.h"
#include "platform/windows/FileReplacement.h"

namespace qutav::host {

std::error_code WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes) {
  const DWORD error = ReplaceFileWhole(ToNativeForm(std::filesystem::absolute(file)),
                                       [&](HANDLE fresh) { return WriteAll(fresh, bytes); });
  return {static_cast<int>(error), std::system_category()};
}

}  // namespace qutav::host
