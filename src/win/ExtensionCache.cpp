#include "win/ExtensionCache.h"

#include <algorithm>
#include <optional>

#include "platform/Services.h"
#include "platform/Text.h"
#include "win/DocumentData.h"
#include "win/DocumentPaths.h"
#include "win/HostScript.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr char16_t kPackageExtension[] = u".zux";

std::vector<std::u16string> SplitAtSemicolons(const std::u16string& text) {
  std::vector<std::u16string> pieces;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find(u';', start), text.size());
    if (end > start) pieces.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return pieces;
}

bool NamesPackage(const std::u16string& path) {
  constexpr std::size_t kLength = 4;
  return path.size() >= kLength &&
         EqualsIgnoringCase(path.substr(path.size() - kLength), kPackageExtension);
}

// An existing path stands as it is; any other piece is sought beside the document.
std::optional<std::u16string> LocatePackage(const std::u16string& piece) {
  Files& files = *TheServices().files;
  if (files.Exists(piece)) return piece;
  const std::u16string& document = DocumentPaths.DocumentPath;
  std::u16string beside = document.substr(0, document.rfind(u'/') + 1) + piece;
  std::replace(beside.begin(), beside.end(), u'/', u'\\');
  if (!files.Exists(beside)) return {};
  return beside;
}

std::vector<std::u16string> LocatePackages(const std::u16string& libraryPath) {
  std::vector<std::u16string> packages;
  for (const std::u16string& piece : SplitAtSemicolons(libraryPath)) {
    const auto path = LocatePackage(piece);
    if (path && NamesPackage(*path)) packages.push_back(*path);
  }
  return packages;
}

// Takes a document key without leaving it in the map.
std::u16string TakeDocumentText(const std::u16string& key) {
  std::u16string text;
  ReadDocumentKey(HostContext, key);
  SettingsGetText(key.c_str(), text);
  SettingsRemove(key);
  return text;
}

bool HasExtensions() { return !ExtensionFileNames.empty() && !ExtensionCacheFolder.empty(); }

}  // namespace

std::vector<std::u16string> ExtensionFilePaths;
std::vector<std::u16string> ExtensionFileNames;
std::u16string ExtensionCacheFolder;

bool ScanExternalLibraryPath() {
  ExtensionFileNames.clear();
  ExtensionFilePaths.clear();
  ExtensionCacheFolder.clear();
  const auto libraryPath = EvaluateToText(HostContext, u"qu.getDocumentDOM().externalLibraryPath;");
  if (!libraryPath) return false;
  ExtensionFilePaths = LocatePackages(*libraryPath);
  if (ExtensionFilePaths.empty()) return false;
  ExtensionCacheFolder =
      TheServices().folders->Temporary() + DocumentPaths.MovieBaseName.Text() + u"_ZUX_Cache\\";
  SettingsSet(keys::kExtensionFolder, ExtensionCacheFolder);
  for (const std::u16string& path : ExtensionFilePaths) {
    ExtensionFileNames.push_back(BaseNameOfPath(path) + kPackageExtension);
  }
  return true;
}

bool ExtensionIdFor(const std::u16string& fileName, std::u16string& target) {
  target = TakeDocumentText(keys::kExtensionIdPrefix + fileName);
  return !target.empty();
}

bool UnzippedExtensionFolder(std::u16string& target) {
  target = TakeDocumentText(keys::kUnzippedExtensions);
  std::replace(target.begin(), target.end(), u'\\', u'/');
  return !target.empty();
}

int CopyExtensionsToPackagingFolder() {
  if (!HasExtensions()) return 0;
  Files& files = *TheServices().files;
  // The folder's path ends in a separator, so it is never found and always tried to create; that an
  // existing one refuses does no harm.
  if (!files.Exists(ExtensionCacheFolder)) files.CreateFolder(ExtensionCacheFolder);
  for (std::size_t i = 0; i < ExtensionFilePaths.size(); ++i) {
    files.Copy(ExtensionFilePaths[i], ExtensionCacheFolder + ExtensionFileNames[i]);
  }
  return 1;
}

void RemoveExtensionsFromPackagingFolder() {
  if (!HasExtensions()) return;
  Files& files = *TheServices().files;
  for (const std::u16string& name : ExtensionFileNames) {
    files.Delete(ExtensionCacheFolder + u"\\" + name);
  }
  files.RemoveFolder(ExtensionCacheFolder);
}

bool GetExtensionList(std::u16string& folder, std::vector<std::u16string>& names) {
  if (!HasExtensions()) return false;
  folder = ExtensionCacheFolder;
  names = ExtensionFileNames;
  return true;
}

}  // namespace qutav
