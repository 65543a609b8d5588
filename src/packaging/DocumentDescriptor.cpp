#include "packaging/DocumentDescriptor.h"

#include "descriptor/DescriptorDocument.h"
#include "framework/MessageBoxes.h"
#include "packaging/DescriptorGenerator.h"
#include "platform/Services.h"
#include "support/Paths.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

int LoadReplacingMilestone(const std::u16string& path) {
  int result = CurrentDescriptor.Load(path);
  if (result == kMilestoneFormat) {
    GenerateDefaultDescriptor();
    result = CurrentDescriptor.Load(path);
  }
  if (result != kLoaded) ShowWarning(Message(messages::kDescriptorCannotBeParsed));
  return result;
}

}  // namespace

std::u16string DocumentDescriptorPath() {
  return WithBackslashes(SettingsGet(keys::kMovieFolder) + SettingsGet(keys::kMovieBaseName) +
                         u"-app.xml");
}

int LoadDocumentDescriptor(bool force) {
  const std::u16string path = DocumentDescriptorPath();
  if (!CurrentDescriptor.IsParserReady()) CurrentDescriptor.InitParser();
  if (!TheServices().files->Exists(path)) GenerateDefaultDescriptor();
  if (!force && CurrentDescriptor.IsLoadedFrom(path)) return kLoaded;
  return LoadReplacingMilestone(path);
}

int SaveDocumentDescriptor() { return CurrentDescriptor.Save(DocumentDescriptorPath()); }

bool RetargetDescriptor() {
  const std::u16string path = DocumentDescriptorPath();
  if (!CurrentDescriptor.IsLoadedFrom(path)) {
    if (!CurrentDescriptor.IsParserReady()) CurrentDescriptor.InitParser();
    if (LoadReplacingMilestone(path) != kLoaded) return false;
  }
  const std::u16string baseName = SettingsGet(keys::kMovieBaseName);
  std::u16string content;
  EncodeSpacesForUri(content, baseName);
  CurrentDescriptor.SetChildText("initialWindow", "content", content + u".qmv");
  if (!CurrentDescriptor.HasChild("name", "text")) {
    CurrentDescriptor.SetChildText("application", "name", baseName);
  }
  CurrentDescriptor.SetChildText("application", "filename", baseName);
  CurrentDescriptor.Save(path);
  CurrentDescriptor.Close();
  return true;
}

}  // namespace qutav
