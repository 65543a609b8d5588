#include "host/SharedLibrary.h"

#include "host/windows/LastError.h"
#include "platform/windows/System.h"

namespace qutav::host {

SharedLibrary::SharedLibrary(const std::filesystem::path& file)
    // With its full name the library's own folder is searched for what it needs, not ours.
    : file_(std::filesystem::absolute(file)),
      handle_(LoadLibraryExW(file_.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {
  if (handle_ == nullptr) {
    throw LibraryError("the library cannot be loaded: " + file_.string() + ": " +
                       LastSystemError().message());
  }
}

void* SharedLibrary::Address(const std::string& symbol) const {
  const FARPROC address = GetProcAddress(static_cast<HMODULE>(handle_), symbol.c_str());
  if (address == nullptr) throw LibraryError(file_.string() + " does not export " + symbol);
  return reinterpret_cast<void*>(address);
}

std::string SharedLibrary::ExtensionFileName() { return "QuTavAndroidExt.dll"; }

}  // namespace qutav::host
