#include "win/InterfaceLanguage.h"

#include <map>

#include "platform/Services.h"
#include "win/HostScript.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr char16_t kLanguageCodeScript[] = u"qu.languageCode;";

const std::map<std::u16string, LanguageId>& LanguageTable() {
  // su_DO is a test language that borrows its id.
  static const std::map<std::u16string, LanguageId> table = {
      {u"cs_CZ", 1029}, {u"de_DE", 1031}, {u"en_US", 1033}, {u"es_ES", 3082}, {u"fr_FR", 1036},
      {u"it_IT", 1040}, {u"ja_JP", 1041}, {u"ko_KR", 1042}, {u"nl_NL", 1043}, {u"pl_PL", 1045},
      {u"pt_BR", 1046}, {u"ru_RU", 1049}, {u"su_DO", 1062}, {u"sv_SE", 1053}, {u"tr_TR", 1055},
      {u"zh_CN", 2052}, {u"zh_TW", 1028}};
  return table;
}

}  // namespace

LanguageId SavedLanguage = kEnglish;
std::u16string ResourceModuleName;

LanguageId LanguageIdForCode(const std::optional<std::u16string>& code) {
  const auto& table = LanguageTable();
  const auto row = code ? table.find(*code) : table.end();
  return row == table.end() ? kEnglish : row->second;
}

void EnterInterfaceLanguage(const HostCallContext& call) {
  Language& language = *TheServices().language;
  const LanguageId wanted = LanguageIdForCode(EvaluateToText(call, kLanguageCodeScript));
  const auto current = static_cast<LanguageId>(language.ThreadLocale() & 0xFFFF);
  if (language.SetThreadInterfaceLanguage(wanted) != wanted) {
    language.SetThreadInterfaceLanguage(current);
  }
  SavedLanguage = current;
}

void LeaveInterfaceLanguage() { TheServices().language->SetThreadInterfaceLanguage(SavedLanguage); }

std::optional<std::u16string> HostLanguageCode(const HostCallContext& call) {
  auto code = EvaluateToPresentText(call, kLanguageCodeScript);
  if (code == u"0") code.reset();
  return code;
}

int LoadResourceString(std::u16string& target, std::uint32_t id) {
  constexpr int kStep = 256;
  target.clear();
  ResourceModuleName = u"QuTavAndroidExt";
  SettingsGet(keys::kRuntimeKit);  // other code relies on the key's being there afterwards
  int capacity = kStep - 1;
  int copied = 0;
  while (true) {
    target.resize(static_cast<std::size_t>(capacity) + 1);
    copied =
        TheServices().language->LoadString(ResourceModuleName, id, target.data(), capacity + 1);
    if (copied != capacity) break;
    capacity += kStep;  // it may have been cut
  }
  target.resize(static_cast<std::size_t>(copied));
  return copied;
}

std::u16string Message(std::uint32_t id) {
  std::u16string text;
  LoadResourceString(text, id);
  return text;
}

}  // namespace qutav
