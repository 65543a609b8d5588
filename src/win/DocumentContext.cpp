#include "win/DocumentContext.h"

#include <optional>
#include <string>

#include "framework/MessageBoxes.h"
#include "platform/Services.h"
#include "support/Paths.h"
#include "win/DocumentData.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr std::uint32_t kUriLimit = 260;
constexpr std::size_t kExecutableLimit = 1024;

struct ArgumentText {
  std::u16string text;
  std::uint32_t length = 0;
};

std::optional<ArgumentText> TakeArgument(const HostCallContext& call, HostValue value) {
  const auto valueToString = HostEnvironment.ValueToString();
  if (valueToString == nullptr) return {};
  ArgumentText argument;
  const char16_t* text = valueToString(call.context, value, &argument.length);
  if (text == nullptr) return {};
  argument.text = text;
  return argument;
}

std::u16string NativePathOf(const HostCallContext& call, const std::u16string& uri) {
  const auto uriToPath = HostEnvironment.UriToPath();
  if (uriToPath == nullptr) return {};
  const char16_t* path = uriToPath(call.context, uri.c_str());
  return path == nullptr ? std::u16string() : path;
}

void FillMoviePaths(const HostCallContext& call, const std::u16string& document,
                    const std::u16string& movie) {
  DocumentPaths.MovieUri = movie;
  DocumentPaths.DocumentPath = WithForwardSlashes(NativePathOf(call, document));
  DocumentPaths.MoviePath = NativePathOf(call, movie);
  DocumentPaths.MovieBaseName = BaseNameOfPath(DocumentPaths.MoviePath);
  DocumentPaths.MovieFolder = WithForwardSlashes(FolderOfPath(DocumentPaths.MoviePath));
}

void FillSettings(const HostCallContext& call) {
  ResetSettings();
  LoadDocumentSettings(call);
  SettingsSet(keys::kLaunchPath, DocumentPaths.LaunchPath.Text());
  SettingsSet(keys::kMovieFolder, DocumentPaths.MovieFolder.Text());
  SettingsSet(keys::kMovieBaseName, DocumentPaths.MovieBaseName.Text());
  SettingsSet(keys::kRuntimeKit, DocumentPaths.RuntimeKitName.Text());
}

std::u16string HostFolder() {
  const std::u16string executable = TheServices().folders->HostExecutable();
  return WithForwardSlashes(FolderOfPath(executable.substr(0, kExecutableLimit)));
}

std::u16string WithoutTrailingSlashes(std::u16string folder) {
  while (folder.ends_with(u'/')) folder.pop_back();
  return folder;
}

}  // namespace

bool PrepareDocumentContext(const HostCallContext& call, HostValue document, HostValue movie,
                            HostValue version) {
  const auto documentUri = TakeArgument(call, document);
  const auto movieUri = TakeArgument(call, movie);
  if (!documentUri || !movieUri) return false;
  if (documentUri->length > kUriLimit || movieUri->length > kUriLimit) return false;
  const auto level = TakeArgument(call, version);

  DocumentPaths = DocumentPathTexts();
  FillMoviePaths(call, documentUri->text, movieUri->text);
  DocumentPaths.RuntimeKitName = level ? u"TAV" + level->text : u"TAV1.0";
  DocumentPaths.LaunchPath = HostFolder();
  FillSettings(call);
  DocumentPaths.DescriptorPath =
      DocumentPaths.MovieFolder.Text() + DocumentPaths.MovieBaseName.Text() + u"-app.xml";

  if (DocumentPaths.DescriptorPath.Text().starts_with(u"//")) {
    ShowInformation(Message(messages::kNetworkLocation));
    return false;
  }
  if (!TheServices().files->Exists(WithoutTrailingSlashes(DocumentPaths.MovieFolder))) {
    ShowInformation(Message(messages::kMovieFolderMissing));
    return false;
  }
  ScanExternalLibraryPath();
  return true;
}

}  // namespace qutav
