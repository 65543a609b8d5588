#include "win/SettingsCommand.h"

#include "packaging/DescriptorGenerator.h"
#include "platform/Services.h"
#include "settings_ui/SettingsSheet.h"
#include "win/DocumentChecks.h"
#include "win/DocumentContext.h"
#include "win/DocumentData.h"
#include "win/DocumentPaths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr int kGeneralPage = 0;

bool HasDescriptor() { return TheServices().files->Exists(DocumentPaths.DescriptorPath); }

void FollowDocument(const HostCallContext& call) {
  const bool fresh = DocumentHasNoStoredFolder(call);
  const bool moved = !fresh && DocumentWasMoved(call);
  if (moved && !HasDescriptor()) {
    RelocateDescriptor(call, DocumentPaths.MovieFolder, DocumentPaths.MovieBaseName);
  }
  if (fresh || moved) SettingsSet(keys::kDocumentPath, DocumentPaths.DocumentPath.Text());
}

}  // namespace

std::int32_t RunSettingsCommand(const HostCallContext& call, const HostValue* arguments) {
  if (!PrepareDocumentContext(call, arguments[0], arguments[1], arguments[2])) return 1;
  DetectPlayerTarget(call);
  FollowDocument(call);
  if (!HasDescriptor() && GenerateDefaultDescriptor() == 0) return 0;
  UpdateExtensionIds();
  SettingsSet(keys::kExitOk, u"false");
  OpenSettingsSheet(TheServices().frontEnd->MainWindow(), kGeneralPage);
  if (SettingsEquals(keys::kExitOk, u"true")) SaveDocumentSettings(call);
  return 1;
}

}  // namespace qutav
