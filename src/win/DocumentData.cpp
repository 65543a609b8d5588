#include "win/DocumentData.h"

#include <array>

#include "platform/Text.h"
#include "win/DocumentPaths.h"
#include "win/HostScript.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr std::array<const char16_t*, 20> DocumentKeyList = {
    keys::kMovieFolder,
    keys::kMovieBaseName,
    keys::kDocumentPath,
    keys::kIncludedCount,
    keys::kPublishTav,
    keys::kPublishIpa,
    keys::kPublishExe,
    keys::kIpaOption,
    keys::kIpaDestination,
    keys::kTavDestination,
    keys::kIpaCertificatePath,
    keys::kIpaProvisioningProfile,
    keys::kIgnoreManifestAdditions,
    keys::kPublishType,
    keys::kMarketUrl,
    keys::kRuntimeType,
    keys::kSdkPath,
    keys::kHostAddress,
    keys::kOldTargetPlatform,
    keys::kProcessorType,
};

std::u16string DocumentCall(const std::u16string& operation, const std::u16string& arguments) {
  return u"qu.getDocumentDOM()." + operation + u"(" + arguments + u");";
}

std::u16string Quoted(const std::u16string& text) { return u"\"" + text + u"\""; }

// Texts that the document gives as "0" count as not held, as the number 0 does.
std::optional<std::u16string> HeldText(const HostCallContext& call, const std::u16string& key) {
  auto text = EvaluateToText(call, DocumentDataScript(key));
  if (text && (text->empty() || *text == u"0")) text.reset();
  return text;
}

template <typename Operation>
void ForEachIncludedItem(const std::u16string& count, Operation operation) {
  const int items = IncludedItemCount(count);
  for (int i = 0; i < items; ++i) operation(keys::kIncludedItem + ToDecimal(i));
}

}  // namespace

std::u16string DocumentDataScript(const std::u16string& key) {
  return DocumentCall(u"getDataFromDocument", Quoted(key));
}

void ReadDocumentKey(const HostCallContext& call, const std::u16string& key) {
  if (key.empty()) return;
  if (const auto text = HeldText(call, key)) SettingsSet(key, *text);
}

void WriteDocumentKey(const HostCallContext& call, const std::u16string& key) {
  if (key.empty()) return;
  std::u16string value;
  if (!SettingsGetText(key.c_str(), value)) {
    RemoveDocumentKey(call, key);
    return;
  }
  EvaluateHostScript(
      call, DocumentCall(u"addDataToDocument", Quoted(key) + u", \"string\", " + Quoted(value)));
}

void RemoveDocumentKey(const HostCallContext& call, const std::u16string& key) {
  if (key.empty()) return;
  EvaluateHostScript(call, DocumentCall(u"removeDataFromDocument", Quoted(key)));
}

void LoadDocumentSettings(const HostCallContext& call) {
  for (const char16_t* key : DocumentKeyList) ReadDocumentKey(call, key);
  ForEachIncludedItem(SettingsGet(keys::kIncludedCount),
                      [&](const std::u16string& item) { ReadDocumentKey(call, item); });
}

void SaveDocumentSettings(const HostCallContext& call) {
  for (const char16_t* key : DocumentKeyList) {
    if (key != keys::kSdkPath) WriteDocumentKey(call, key);
  }
  // The count just written is what is read here, so a shorter list leaves its surplus behind;
  // loading stops at the count.
  ForEachIncludedItem(HeldText(call, keys::kIncludedCount).value_or(u""),
                      [&](const std::u16string& item) { RemoveDocumentKey(call, item); });
  ForEachIncludedItem(SettingsGet(keys::kIncludedCount),
                      [&](const std::u16string& item) { WriteDocumentKey(call, item); });
}

std::int32_t ExportMovieForPublish() {
  const std::u16string arguments = Quoted(DocumentPaths.MovieUri) + u", \"true\"";
  const HostResult result =
      EvaluateHostScript(HostContext, DocumentCall(u"exportQMVPrivate", arguments));
  return result.status == 1 ? HostInteger(HostContext, result.value, -1) : -1;
}

int GetDebugForMovie() {
  const HostResult result = EvaluateHostScript(HostContext, DocumentCall(u"getDebugForQmv", u""));
  const auto valueToBoolean = HostEnvironment.ValueToBoolean();
  if (result.status != 1 || valueToBoolean == nullptr) return 0;
  std::int32_t flag = 0;
  valueToBoolean(HostContext.context, result.value, &flag);
  return flag == 1 ? 1 : 0;
}

void SetDebugForMovie(bool flag) {
  EvaluateHostScript(HostContext,
                     DocumentCall(u"setDebugForQmv", flag ? u"true,false" : u"false,false"));
}

}  // namespace qutav
