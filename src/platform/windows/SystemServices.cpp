#include "platform/windows/SystemServices.h"

#include "platform/Services.h"
#include "platform/standard/StandardServices.h"

namespace qutav {

void InstallSystemServices() {
  Services& services = TheServices();
  services.files = &SystemFiles();
  services.processes = &SystemProcesses();
  services.clock = &StandardClock();
  services.registry = &SystemRegistry();
  services.folders = &SystemFolders();
  services.language = &SystemLanguage();
  services.networkTables = &SystemNetworkTables();
  services.threads = &StandardThreads();
  services.images = &SystemImages();
}

}  // namespace qutav
