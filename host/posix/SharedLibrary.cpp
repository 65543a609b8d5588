#include "host/SharedLibrary.h"

#include <dlfcn.h>

namespace qutav::host {
namespace {

std::string LoaderMessage() {
  const char* message = dlerror();
  return message != nullptr ? message : "the loader gives no reason";
}

}  // namespace

SharedLibrary::SharedLibrary(const std::filesystem::path& file)
    // Without a slash the loader would search its own folders instead of taking the file.
    : file_(std::filesystem::absolute(file)), handle_(dlopen(file_.c_str(), RTLD_NOW)) {
  if (handle_ == nullptr) throw LibraryError("the library cannot be loaded: " + LoaderMessage());
}

void* SharedLibrary::Address(const std::string& symbol) const {
  void* address = dlsym(handle_, symbol.c_str());
  if (address == nullptr) throw LibraryError(file_.native() + " does not export " + symbol);
  return address;
}

std::string SharedLibrary::ExtensionFileName() { return "QuTavAndroidExt.so"; }

}  // namespace qutav::host
