#include "support/Paths.h"

#include <algorithm>

#include "platform/Services.h"
#include "platform/Text.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

std::u16string CommonJavaPath() {
  std::u16string root = WithForwardSlashes(TheServices().folders->CommonProgramFiles());
  if (root.empty()) return root;
  if (root.back() != u'/') root += u'/';
  constexpr int kProductYear = 2020;
  return root + u"Zenvoka/Zenvoka Kestrow " + ToDecimal(kProductYear) + u"/jre";
}

std::u16string MovieFolder() { return WithBackslashes(SettingsGet(keys::kMovieFolder)); }

std::u16string SdkRoot() {
  const std::u16string chosen = SettingsGet(keys::kSdkPath);
  if (!chosen.empty()) return chosen;
  return SettingsGet(keys::kLaunchPath) + SettingsGet(keys::kRuntimeKit);
}

void LastNameOfPath(std::u16string& text) {
  const std::size_t slash = text.rfind(u'/');
  if (slash != text.npos && slash > 0) text.erase(0, slash + 1);
  const std::size_t dot = text.rfind(u'.');
  if (dot != text.npos && dot > 0) text.erase(dot);
}

void ConvertBackslashes(std::u16string& text, char16_t replacement) {
  std::replace(text.begin(), text.end(), u'\\', replacement);
}

std::u16string WithForwardSlashes(std::u16string text) {
  ConvertBackslashes(text, u'/');
  return text;
}

std::u16string WithBackslashes(std::u16string text) {
  std::replace(text.begin(), text.end(), u'/', u'\\');
  return text;
}

std::u16string ReplaceExtension(const std::u16string& path, const std::u16string& extension) {
  if (path.empty() || extension.empty()) return path;
  const bool dotted = extension.find(u'.') != extension.npos;
  return path.substr(0, path.rfind(u'.')) + (dotted ? u"" : u".") + extension;
}

std::u16string MakeRelative(const std::u16string& path, const std::u16string& folder) {
  return path.find(folder) == path.npos ? path : path.substr(folder.size());
}

void DecodePercent20(std::u16string& target, const std::u16string& source) {
  if (source.empty()) return;
  const std::u16string decoded = ReplaceAll(source, u"%20", u" ");
  target = ReplaceAll(decoded, u"%", u"");
}

void EncodeSpacesForUri(std::u16string& target, const std::u16string& source) {
  if (!source.empty()) target = ReplaceAll(source, u" ", u"%20");
}

std::optional<std::u16string> EncodeSpacesForXml(const std::u16string& text) {
  if (text.empty()) return {};
  return ReplaceAll(text, u" ", u"&#37;20");
}

std::optional<std::string> DuplicateNarrow(const std::u16string& text) {
  if (text.empty()) return {};
  return ToLocalCodePage(text);
}

bool IsOlderWindows() { return TheServices().folders->MajorVersion() == 5; }

}  // namespace qutav
