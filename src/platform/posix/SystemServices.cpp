#include "platform/posix/SystemServices.h"

#include "platform/Services.h"
#include "platform/catalogue/CatalogueLanguages.h"
#include "platform/standard/StandardServices.h"

namespace qutav {

void InstallSystemServices() {
  Services& services = TheServices();
  services.files = &SystemFiles();
  services.processes = &SystemProcesses();
  services.clock = &StandardClock();
  services.registry = &SystemRegistry();
  services.folders = &SystemFolders();
  services.language = &CatalogueLanguageService();
  services.networkTables = &SystemNetworkTables();
  services.threads = &StandardThreads();
  services.images = &SystemImages();
}

}  // namespace qutav
