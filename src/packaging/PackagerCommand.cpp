#include "packaging/PackagerCommand.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "platform/Services.h"
#include "platform/Text.h"
#include "support/Paths.h"
#include "support/RegistryStore.h"
#include "support/RuntimeVersion.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr char16_t kEmbed[] = u"embed";

std::u16string Keystore(PublishTarget target) {
  return SettingsGet(target == PublishTargetIpa ? keys::kIpaCertificatePath
                                                : keys::kCertificatePath);
}

std::u16string SigningTail(const PackagerInputs& inputs) {
  const std::u16string tail =
      Keystore(inputs.target) + u"\" -storepass \"" + inputs.password + u"\" ";
  return inputs.target == PublishTargetExe ? tail + u"-target native " : tail;
}

std::u16string IosTargetName(const std::u16string& option) {
  if (option == u"debug") return u"ipa-debug -connect";
  if (option == u"adhoc") return u"ipa-ad-hoc";
  if (option == u"store") return u"ipa-app-store";
  return u"ipa-test";
}

std::u16string IosForm(const PackagerInputs& inputs) {
  return u" -package -target " + IosTargetName(SettingsGet(keys::kIpaOption)) +
         u" -provisioning-profile \"" + SettingsGet(keys::kIpaProvisioningProfile) + u"\" " +
         u" -storetype PKCS12 -keystore \"" + SigningTail(inputs);
}

// The address in the angle brackets behind an interface's name; nothing for the default choice.
std::u16string HostClause() {
  const std::u16string host = SettingsGet(keys::kHostAddress);
  if (host.empty() || host == Message(messages::kDefaultChoice)) return {};
  const std::size_t open = host.find(u'<');
  const std::size_t close = host.find(u'>');
  if (open == host.npos || close == host.npos || open < 1 || close < open) return {};
  return u" " + host.substr(open + 1, close - open - 1);
}

std::u16string ListenPort() {
  std::u16string port;
  GetRegistryString(u"usbPort", port);
  return port.empty() ? u"7936" : port;
}

std::u16string AndroidTargetClause(const std::u16string& runtimeType) {
  const std::u16string type = SettingsGet(keys::kPublishType);
  if (SettingsEquals(keys::kDebugOnDevice, u"true")) {
    return u" -package -target apk-debug -listen " + ListenPort();
  }
  if (type == u"debug" || type.empty()) {
    return u" -package -target apk-debug  -connect" + HostClause();
  }
  if (type == u"release" && runtimeType == kEmbed) return u" -package -target apk-captive-runtime";
  if (type == u"release") return u" -package -target apk";
  if (type == u"release-emulator") return u" -package -target apk-emulator";
  return {};
}

std::u16string MarketClause(const std::u16string& runtimeType) {
  const std::u16string url = SettingsGet(keys::kMarketUrl);
  return url.empty() || runtimeType == kEmbed ? u"" : u" -tavDownloadURL " + url;
}

std::u16string ProcessorClause() {
  if (!RuntimeIsAtLeast(u"TAV14.0")) return {};
  const std::u16string type = SettingsGet(keys::kProcessorType);
  if (type == u"x86") return u" -arch x86";
  if (type == u"armv8") return u" -arch armv8";
  return u" -arch armv7";
}

std::u16string StoreType(const std::u16string& keystore) {
  return ToLowerAscii(keystore).ends_with(u".jks") ? u" JKS" : u" PKCS12";
}

std::u16string AndroidForm(const PackagerInputs& inputs) {
  return AndroidTargetClause(inputs.runtimeType) + MarketClause(inputs.runtimeType) +
         ProcessorClause() + u" -storetype" + StoreType(Keystore(inputs.target)) +
         u" -keystore \"" + SigningTail(inputs);
}

std::u16string ExtensionOf(PublishTarget target) {
  switch (target) {
    case PublishTargetIpa:
      return u".ipa";
    case PublishTargetExe:
      return u".exe";
    case PublishTargetApk:
      break;
  }
  return u".apk";
}

// The name is made with the Android extension for iOS too and mended afterwards, so that what is
// stored as the destination is the same for both.
std::u16string DefaultExtension(PublishTarget target) {
  return target == PublishTargetExe ? u".exe" : u".apk";
}

bool HoldsPackageExtension(const std::u16string& path) {
  constexpr std::array<std::u16string_view, 5> kExtensions = {u".apk", u".tav", u".tavi", u".ipa",
                                                              u".exe"};
  const std::u16string lower = ToLowerAscii(path);
  return std::any_of(kExtensions.begin(), kExtensions.end(), [&](std::u16string_view extension) {
    return lower.find(extension) != lower.npos;
  });
}

std::u16string StoredDestination(PublishTarget target, const std::u16string& applicationName) {
  std::u16string destination =
      SettingsGet(target == PublishTargetIpa ? keys::kIpaDestination : keys::kTavDestination);
  if (!destination.empty()) return destination;
  destination = applicationName.empty() ? SettingsGet(keys::kMovieBaseName) : applicationName;
  destination += DefaultExtension(target);
  SettingsSet(keys::kTavDestination, destination);
  return destination;
}

std::u16string DescriptorArgument() {
  const std::u16string custom = SettingsGet(keys::kCustomDescriptorPath);
  if (SettingsEquals(keys::kUseCustomDescriptor, u"true") && !custom.empty()) return custom;
  return SettingsGet(keys::kMovieFolder) + SettingsGet(keys::kMovieBaseName) + u"-app.xml";
}

std::u16string ImageItems(const std::vector<std::u16string>& images) {
  std::u16string items;
  std::set<std::u16string> seen;
  for (const std::u16string& image : images) {
    if (!seen.insert(image).second) continue;
    std::u16string path;
    DecodePercent20(path, image);
    items += u"\"" + path + u"\" ";
  }
  return items;
}

std::optional<FoundFile> FindIncluded(const std::u16string& value) {
  Files& files = *TheServices().files;
  const std::u16string beside = MovieFolder() + value;
  auto found = files.Find(beside);
  return found ? found : files.Find(value);
}

std::u16string IncludedItem(const FoundFile& found) {
  const std::u16string folder = SettingsGet(keys::kMovieFolder);
  const std::u16string root = WithForwardSlashes(found.root);
  const auto item = [](const std::u16string& base, const std::u16string& path) {
    return u" -C \"" + base + u"\" \"" + path + u"\" ";
  };
  if (root.starts_with(folder) && root.size() > folder.size()) {
    return item(folder, root.substr(folder.size()) + found.name);
  }
  return item(root, found.name);
}

}  // namespace

std::u16string PackagerHead() {
  return u"\"" + CommonJavaPath() + u"/bin/java" + TheServices().processes->ProgramSuffix() +
         u"\" -jar \"" + SdkRoot() + u"/lib/KOB.jar\" ";
}

std::u16string TargetAndSigning(const PackagerInputs& inputs) {
  if (inputs.target == PublishTargetIpa) return IosForm(inputs);
  if (inputs.target == PublishTargetApk && inputs.digitalSign == u"prepare") return u" -prepare ";
  return AndroidForm(inputs);
}

bool DestinationUsable(const std::u16string& path) {
  Files& files = *TheServices().files;
  if (files.Exists(path)) return true;
  std::size_t separator = path.rfind(u'/');
  if (separator == path.npos) separator = path.rfind(u'\\');
  return separator != path.npos && files.Exists(path.substr(0, separator));
}

std::optional<std::u16string> PackageDestination(PublishTarget target,
                                                 const std::u16string& applicationName) {
  std::u16string path =
      ReplaceExtension(StoredDestination(target, applicationName), ExtensionOf(target));
  if (!DestinationUsable(path)) {
    if (path.find_first_of(u"/\\") != path.npos) return {};
    path = SettingsGet(keys::kMovieFolder) + path;
  }
  if (!HoldsPackageExtension(path)) path += DefaultExtension(target);
  return path;
}

std::u16string PackagedContent(const std::u16string& destination,
                               const std::vector<std::u16string>& images) {
  return u"\"" + destination + u"\" \"" + DescriptorArgument() + u"\" -C \"" +
         SettingsGet(keys::kMovieFolder) + u"\" \"" + SettingsGet(keys::kMovieBaseName) +
         u".qmv\" " + ImageItems(images);
}

std::u16string IncludedItems(std::vector<std::u16string>& missing) {
  std::u16string items;
  const int count = IncludedItemCount(SettingsGet(keys::kIncludedCount));
  for (int i = 0; i < count; ++i) {
    const std::u16string value = SettingsGet(keys::kIncludedItem + ToDecimal(i));
    if (value.empty()) continue;
    if (const auto found = FindIncluded(value)) {
      items += IncludedItem(*found);
    } else {
      missing.push_back(value);
    }
  }
  return items;
}

std::u16string ExtensionOption(const std::u16string& folder) {
  std::u16string path = WithForwardSlashes(folder);
  if (!path.ends_with(u'/')) path += u'/';
  return u" -extdir \"" + path + u"\" ";
}

}  // namespace qutav
