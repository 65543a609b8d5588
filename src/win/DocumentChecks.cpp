#include "win/DocumentChecks.h"

#include "descriptor/DescriptorDocument.h"
#include "descriptor/SampleNamespace.h"
#include "framework/MessageBoxes.h"
#include "packaging/DescriptorGenerator.h"
#include "packaging/DocumentDescriptor.h"
#include "platform/Services.h"
#include "support/Paths.h"
#include "win/DocumentData.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"
#include "win/HostScript.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

void TargetAndroid() {
  SettingsSet(keys::kPublishIpa, u"false");
  SettingsSet(keys::kPublishTav, u"true");
}

std::optional<std::u16string> StoredText(const HostCallContext& call, const std::u16string& key) {
  return EvaluateToPresentText(call, DocumentDataScript(key));
}

bool TellUnparsable() {
  ShowWarning(Message(messages::kDescriptorCannotBeParsed));
  return false;
}

void AlignNamespace() {
  std::string sample;
  std::string own;
  if (ReadSampleNamespace(sample) != 0) return;
  LaunchDescriptor.GetAttribute("application", "xmlns", own);
  if (own == sample) return;
  LaunchDescriptor.SetAttribute("application", "xmlns", sample);
  LaunchDescriptor.Save(DocumentPaths.ActiveDescriptorPath);
}

void WriteExtensionIds() {
  LaunchDescriptor.RemoveChild("application", "extensions");
  std::u16string folder;
  std::vector<std::u16string> packages;
  if (!GetExtensionList(folder, packages)) return;
  LaunchDescriptor.AppendChild("application", "extensions", u"");
  for (const std::u16string& package : packages) {
    std::u16string id;
    if (ExtensionIdFor(package, id)) LaunchDescriptor.AppendChild("extensions", "extensionID", id);
  }
}

}  // namespace

void DetectPlayerTarget(const HostCallContext& call) {
  if (EvaluateToText(call, u"qu.getDocumentDOM().playerTarget;") == u"iPhone OS") {
    SettingsSet(keys::kPublishIpa, u"true");
  } else {
    TargetAndroid();
  }
}

void DetectOutputType(const HostCallContext& call) {
  if (EvaluateToText(call, DocumentDataScript(keys::kOutputType)) == u"ipa") {
    SettingsSet(keys::kPublishIpa, u"true");
  } else {
    TargetAndroid();
  }
}

bool DocumentHasNoStoredFolder(const HostCallContext& call) {
  return !StoredText(call, keys::kMovieFolder);
}

bool DocumentWasMoved(const HostCallContext& call) {
  const auto path = EvaluateToPresentText(call, u"qu.getDocumentDOM().path;");
  if (!path) return false;
  const auto stored = StoredText(call, keys::kDocumentPath);
  return !stored || WithForwardSlashes(*path) != *stored;
}

void RelocateDescriptor(const HostCallContext& call, const std::u16string& folder,
                        const std::u16string& baseName) {
  const std::u16string oldPath = StoredText(call, keys::kMovieFolder).value_or(u"") +
                                 StoredText(call, keys::kMovieBaseName).value_or(u"") + u"-app.xml";
  const std::u16string newPath = folder + baseName + u"-app.xml";
  SettingsSet(keys::kMovieFolder, folder);
  SettingsSet(keys::kMovieBaseName, baseName);
  Files& files = *TheServices().files;
  if (files.Exists(oldPath) && files.Copy(oldPath, newPath) && RetargetDescriptor()) return;
  GenerateDefaultDescriptor();
}

bool FollowMovedDocument(const HostCallContext& call) {
  if (!DocumentWasMoved(call)) return false;
  RelocateDescriptor(call, DocumentPaths.MovieFolder, DocumentPaths.MovieBaseName);
  SettingsSet(keys::kDocumentPath, DocumentPaths.DocumentPath.Text());
  return true;
}

bool HasOrRelocatesDescriptor(const HostCallContext& call) {
  return TheServices().files->Exists(DocumentPaths.DescriptorPath) || FollowMovedDocument(call);
}

bool OpenDescriptor() {
  DocumentPaths.ActiveDescriptorPath = DocumentPaths.DescriptorPath.Text();
  if (!LaunchDescriptor.IsParserReady()) LaunchDescriptor.InitParser();
  if (LaunchDescriptor.Load(DocumentPaths.ActiveDescriptorPath) != kLoaded) return TellUnparsable();
  AlignNamespace();
  LaunchDescriptor.Close();
  return true;
}

void UpdateExtensionIds() {
  const std::u16string& path = DocumentPaths.DescriptorPath;
  if (!TheServices().files->Exists(path) && GenerateDefaultDescriptor() == 0) return;
  if (!LaunchDescriptor.IsParserReady()) LaunchDescriptor.InitParser();
  int result = LaunchDescriptor.Load(path);
  if (result == kMilestoneFormat) {
    GenerateDefaultDescriptor();
    result = LaunchDescriptor.Load(path);
  }
  if (result != kLoaded) {
    TellUnparsable();
    return;
  }
  WriteExtensionIds();
  LaunchDescriptor.Save(path);
  LaunchDescriptor.Close();
}

}  // namespace qutav
