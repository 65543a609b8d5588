#include "win/DeviceListCommand.h"

#include "packaging/DeviceBridge.h"
#include "win/DocumentContext.h"

namespace qutav {

std::int32_t RunDeviceListCommand(const HostCallContext& call, const HostValue* arguments) {
  if (PrepareDocumentContext(call, arguments[0], arguments[1], arguments[2])) RefreshDevices(true);
  return 1;
}

}  // namespace qutav
