#include "platform/Services.h"

namespace qutav {

Services& TheServices() {
  static Services services;
  return services;
}

}  // namespace qutav
