#include "packaging/DescriptorGenerator.h"

#include <string>
#include <vector>

#include "descriptor/SampleNamespace.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "support/NameRules.h"
#include "support/Paths.h"
#include "win/ExtensionCache.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr char16_t kHeading[] =
    u"<?xml version =\"1.0\" encoding=\"utf-8\" ?>"
    u"<!-- \n"
    u"\tUsage:\n"
    u"\n"
    u"\tTo localize the description, use the following format for the description element.\n"
    u"\t<description>\n"
    u"\t<text xml:lang=\"en\">English App description goes here</text>\n"
    u"\t<text xml:lang=\"fr\">French App description goes here</text>\n"
    u"\t<text xml:lang=\"ja\">Japanese App description goes here</text>\n"
    u"\t</description>\n"
    u"\n"
    u"\tTo localize the name, use the following format for the name element.\n"
    u"\t<name>\n"
    u"\t<text xml:lang=\"en\">English App name goes here</text>\n"
    u"\t<text xml:lang=\"fr\">French App name goes here</text>\n"
    u"\t<text xml:lang=\"ja\">Japanese App name goes here</text>\n"
    u"\t</name>\n"
    u"-->\n";

std::u16string Element(const std::u16string& tag, const std::u16string& text) {
  return u"<" + tag + u">" + text + u"</" + tag + u">";
}

std::u16string SettingOr(const std::u16string& key, const std::u16string& otherwise) {
  const std::u16string value = SettingsGet(key);
  return value.empty() ? otherwise : value;
}

std::u16string NamespaceOfSdk() {
  std::string sample;
  if (ReadSampleNamespace(sample) == 0) return FromLocalCodePage(sample);
  return std::u16string(DescriptorNamespaceBase) + u"2.0";
}

std::u16string ApplicationId(const std::u16string& baseName) {
  std::u16string id = SettingOr(keys::kApplicationId, SettingOr(keys::kApplicationName, baseName));
  for (const char16_t* dropped : {u"_", u" ", u"-"}) id = ReplaceAll(id, dropped, u"");
  return IsValidApplicationId(id) ? id : u"noName";
}

std::u16string IdentityElements(const std::u16string& baseName) {
  return Element(u"id", ApplicationId(baseName)) +
         Element(u"versionNumber", SettingOr(keys::kVersion, u"1.0.0")) +
         Element(u"versionLabel", u"") +
         Element(u"filename", SettingOr(keys::kApplicationName, baseName)) +
         Element(u"description", SettingsGet(keys::kDescription)) +
         Element(u"name", SettingOr(keys::kShortName, baseName)) +
         Element(u"copyright", SettingsGet(keys::kCopyright));
}

std::u16string WindowElement(const std::u16string& baseName) {
  const std::u16string type = SettingsGet(keys::kWindowType);
  const bool transparent = type == u"transparent";
  const bool chromeless = transparent || type == u"opaque";
  return Element(u"initialWindow",
                 Element(u"content", EncodeSpacesForXml(baseName).value_or(baseName) + u".qmv") +
                     Element(u"systemChrome", chromeless ? u"none" : u"standard") +
                     Element(u"transparent", transparent ? u"true" : u"false") +
                     Element(u"visible", u"true") + Element(u"fullScreen", u"false") +
                     Element(u"aspectRatio", u"portrait") + Element(u"renderMode", u"cpu"));
}

std::u16string ExtensionElements() {
  std::u16string folder;
  std::vector<std::u16string> packages;
  if (!GetExtensionList(folder, packages)) return {};
  std::u16string ids;
  for (const std::u16string& package : packages) {
    std::u16string id;
    if (ExtensionIdFor(package, id)) ids += Element(u"extensionID", id);
  }
  return Element(u"extensions", ids);
}

std::u16string ProgramMenuElement() {
  const std::u16string menu = SettingsGet(keys::kProgramMenu);
  return menu.empty() ? menu : Element(u"programMenuFolder", menu);
}

std::u16string DescriptorText(const std::u16string& baseName) {
  return kHeading + (u"<application xmlns=\"" + NamespaceOfSdk() + u"\">") +
         IdentityElements(baseName) + WindowElement(baseName) + ExtensionElements() +
         ProgramMenuElement() + Element(u"icon", u"") + Element(u"customUpdateUI", u"false") +
         Element(u"allowBrowserInvocation", u"false") + u"</application>";
}

// The text serves as a format without arguments: of a doubled percent sign one is left. A single
// one has nothing to format and stays.
std::u16string Formatted(const std::u16string& format) { return ReplaceAll(format, u"%%", u"%"); }

// Text mode with a byte order mark: line feeds become the system's line ends.
std::string FileBytes(const std::u16string& text) {
  const std::u16string lineEnd = FromUtf8(TheServices().files->LineEnd());
  return "\xEF\xBB\xBF" + ToUtf8(ReplaceAll(text, u"\n", lineEnd));
}

}  // namespace

int GenerateDefaultDescriptor() {
  SettingsSet(keys::kOldTargetPlatform, u"Nothing");
  const std::u16string baseName = SettingsGet(keys::kMovieBaseName);
  const std::u16string path = SettingsGet(keys::kMovieFolder) + baseName + u"-app.xml";
  TheServices().files->Write(path, FileBytes(Formatted(DescriptorText(baseName))));
  return 1;
}

}  // namespace qutav
