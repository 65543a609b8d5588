#include "host/windows/LastError.h"

#include "platform/windows/System.h"

namespace qutav::host {

std::error_code LastSystemError() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

}  // namespace qutav::host
