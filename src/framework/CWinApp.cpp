#include "framework/CWinApp.h"

#include "framework/FrontEnds.h"
#include "platform/Services.h"

namespace qutav {

bool CWinApp::InitInstance() {
  Services& services = TheServices();
  if (services.files == nullptr) InstallSystemServices();
  if (services.frontEnd == nullptr) services.frontEnd = &SystemFrontEnd();
  return true;
}

}  // namespace qutav
