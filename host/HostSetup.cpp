#include "host/HostSetup.h"

#include <system_error>

#include "host/ProcessState.h"
#include "host/RuntimeLevel.h"
#include "host/SharedLibrary.h"

namespace qutav::host {

HostState MakeHostState(const CommonOptions& options, Document& document, Console& console) {
  const std::uint8_t level = MajorOfRuntimeLevel(options.runtimeLevel).value_or(0);
  return {document, console, options.languageCode, level, {}};
}

void EnterMovieFolder(const Document& document) {
  std::error_code missing;
  std::filesystem::current_path(document.MoviePath().parent_path(), missing);
}

std::filesystem::path LibraryFile(const CommonOptions& options) {
  if (!options.library.empty()) return options.library;
  return ExecutableFile().parent_path() / SharedLibrary::ExtensionFileName();
}

void EnterLibrary(HostSession& session, const CommonOptions& options) {
  session.Enter(SharedLibrary(LibraryFile(options)));
}

bool SaveDocument(Document& document, Console& console) {
  try {
    document.Save();
    return true;
  } catch (const DocumentError& error) {
    console.Message(error.what());
    return false;
  }
}

}  // namespace qutav::host
