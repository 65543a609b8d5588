#include "ServicesTest.h"

#include "descriptor/DescriptorDocument.h"
#include "packaging/DeviceBridge.h"
#include "packaging/PublishCancelled.h"
#include "packaging/PublishDriver.h"
#include "support/RegistryStore.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"
#include "win/InterfaceLanguage.h"
#include "win/PublishCommand.h"
#include "win/SettingsMap.h"
#include "win/SimulatorController.h"

namespace qutav::test {
namespace {

void ResetProcessWideState() {
  SettingsMap.clear();
  DocumentPaths = DocumentPathTexts();
  HostContext = HostCallContext();
  HostEnvironment = HostTable();
  SavedLanguage = kEnglish;
  ExtensionFilePaths.clear();
  ExtensionFileNames.clear();
  ExtensionCacheFolder.clear();
  MissingIncludedFiles.clear();
  AdbServerStarted = false;
  DeviceListFetched = false;
  DebugDeviceSerial.clear();
  DebugPort = kFirstDebugPort;
  SimulatorPort = 7835;
  PublishCancelled = 0;
  CurrentDescriptor.Close();
  LaunchDescriptor.Close();
}

}  // namespace

ServicesTest::ServicesTest() {
  TheServices() = {&files,    &processes, &clock,      &registry, &folders,
                   &language, &threads,   &imageFiles, &frontEnd, &networkTables};
  ResetProcessWideState();
  language.SetThreadInterfaceLanguage(kEnglish);
  language.switches.clear();
  host.Install();
}

ServicesTest::~ServicesTest() {
  ResetProcessWideState();
  TheServices() = Services();
}

std::u16string RegistryValue(const MemoryRegistry& registry, const std::u16string& name) {
  const auto key = registry.keys.find(RegistrySettingsKeyPath());
  if (key == registry.keys.end()) return {};
  for (const auto& [valueName, value] : key->second) {
    if (valueName == name) return value;
  }
  return {};
}

}  // namespace qutav::test
