#include "settings_ui/PublishEntry.h"

#include "packaging/PublishDriver.h"
#include "platform/Services.h"
#include "settings_ui/SettingsSheet.h"
#include "support/RegistryStore.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

PublishTarget ChooseTarget() {
  if (SettingsEquals(keys::kPublishIpa, u"true")) return PublishTargetIpa;
  const bool executable =
      !SettingsEquals(keys::kPublishTav, u"true") && SettingsEquals(keys::kPublishExe, u"true");
  return executable ? PublishTargetExe : PublishTargetApk;
}

bool HasText(const std::u16string& key) { return !SettingsGet(key).empty(); }

bool HasSigningMaterial(PublishTarget target) {
  if (target == PublishTargetIpa) {
    return HasText(keys::kIpaCertificatePath) && HasText(keys::kIpaCertificatePassword);
  }
  std::u16string digitalSign;
  GetRegistryString(u"DigitalSign", digitalSign);
  // Any other text stands for a package that is signed later.
  if (digitalSign != u"sign" && !digitalSign.empty()) return true;
  return HasText(keys::kCertificatePath) && HasText(keys::kCertificatePassword);
}

}  // namespace

int PublishEntry() {
  const PublishTarget target = ChooseTarget();
  if (!HasSigningMaterial(target)) {
    OpenSettingsSheet(TheServices().frontEnd->MainWindow(), kDeploymentPage);
    return 0;
  }
  return PublishDriver(target, SettingsEquals(keys::kPublishType, u"debug"));
}

}  // namespace qutav
