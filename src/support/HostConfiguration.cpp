#include "support/HostConfiguration.h"

#include "support/Paths.h"
#include "win/DocumentPaths.h"
#include "win/InterfaceLanguage.h"

namespace qutav {

std::u16string HostConfigurationFile(const std::u16string& name) {
  return WithBackslashes(DocumentPaths.LaunchPath) + HostLanguageCode(HostContext).value_or(u"") +
         u"\\configuration\\Android\\" + name;
}

}  // namespace qutav
