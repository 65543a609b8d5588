#include "packaging/DeviceTools.h"

#include "platform/Services.h"
#include "support/Paths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// Heads are put together with backslashes; a system with other separators gets its own.
std::u16string Native(std::u16string path) {
  const char16_t separator = TheServices().processes->HeadSeparator();
  if (separator != u'\\') ConvertBackslashes(path, separator);
  return path;
}

std::u16string Root() {
  const std::u16string chosen = SettingsGet(keys::kSdkPath);
  if (!chosen.empty()) return chosen;
  return WithBackslashes(SettingsGet(keys::kLaunchPath)) + SettingsGet(keys::kRuntimeKit);
}

std::u16string Program(const std::u16string& path) {
  return u"\"" + Native(path) + TheServices().processes->ProgramSuffix() + u"\"";
}

}  // namespace

std::u16string AdbProgram() { return Program(Root() + u"\\lib\\android\\bin\\adb"); }

std::u16string DeviceToolPrefix() {
  return Program(WithBackslashes(CommonJavaPath()) + u"\\bin\\java") + u" -jar \"" +
         Native(Root() + u"\\lib\\KOB.jar") + u"\" ";
}

}  // namespace qutav
