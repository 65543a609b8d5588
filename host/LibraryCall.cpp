#include "host/LibraryCall.h"

#include "host/ExitCodes.h"
#include "host/FileUri.h"
#include "host/NativePath.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

std::string UriOf(const std::filesystem::path& file) {
  return ToUtf8(FileUriOf(ToNativeForm(file)));
}

// An encoded URI and a checked level hold no quotes.
std::string PublishScript(const Document& document, const std::string& runtimeLevel) {
  return "Publish(\"" + UriOf(document.Path()) + "\", \"" + UriOf(document.MoviePath()) + "\", \"" +
         runtimeLevel + "\");";
}

}  // namespace

std::vector<std::string> PublishCallArguments(const CommonOptions& options,
                                              const Document& document) {
  std::vector<std::string> arguments = {"evaluate",
                                        document.Path().string(),
                                        PublishScript(document, options.runtimeLevel),
                                        "--version=" + options.runtimeLevel,
                                        "--language=" + options.languageCode,
                                        "--quiet"};
  if (!options.library.empty()) arguments.push_back("--library=" + options.library.string());
  if (options.verbose) arguments.push_back("--verbose");
  return arguments;
}

std::string UnexpectedEndText(const ChildEnd& end) {
  const std::string number = std::to_string(end.number);
  if (end.kind == ChildEnd::Kind::kKilled) return "The library was ended by signal " + number + ".";
  if (end.number == kDone || end.number == kNotDone) return "";
  return "The library ended its host with code " + number + ".";
}

}  // namespace qutav::host
