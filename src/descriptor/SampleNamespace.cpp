#include "descriptor/SampleNamespace.h"

#include "descriptor/DescriptorDocument.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

std::u16string SampleDescriptorPath() {
  const std::u16string chosen = SettingsGet(keys::kSdkPath);
  const std::u16string root =
      chosen.empty() ? SettingsGet(keys::kLaunchPath) + u"/" + SettingsGet(keys::kRuntimeKit)
                     : chosen;
  return root + u"/samples/descriptor-sample.xml";
}

int ReadSampleNamespace(std::string& buffer) {
  DescriptorDocument sample;
  if (sample.InitParser() != 0) return -1;
  const bool loaded = sample.Load(SampleDescriptorPath()) == kLoaded;
  if (loaded) sample.GetAttribute("application", "xmlns", buffer);
  sample.Close();
  return loaded ? 0 : -1;
}

}  // namespace qutav
