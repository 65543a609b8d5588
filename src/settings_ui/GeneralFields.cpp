#include "settings_ui/GeneralFields.h"

#include "descriptor/DescriptorDocument.h"
#include "framework/MessageBoxes.h"
#include "platform/Services.h"
#include "support/NameRules.h"
#include "support/Paths.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

std::u16string StartNameOf(const Edit& field) {
  if (field.text.empty()) return SettingsGet(keys::kMovieBaseName);
  std::u16string name = field.text;
  LastNameOfPath(name);
  return name;
}

}  // namespace

std::optional<std::u16string> DescriptorText(const char* tag) {
  std::u16string text;
  if (CurrentDescriptor.GetText(tag, text) != 0) return {};
  return text;
}

void LoadField(Edit& field, const char* tag) { CurrentDescriptor.GetText(tag, field.text); }

bool IsLocalised(const char* tag) { return CurrentDescriptor.HasChild(tag, "text"); }

bool LoadLocalisableField(Edit& field, const char* tag) {
  if (IsLocalised(tag)) {
    field.enabled = false;
    return false;
  }
  const auto text = DescriptorText(tag);
  if (!text) return false;
  field.text = *text;
  field.enabled = true;
  return true;
}

bool AcceptApplicationId(const std::u16string& id) {
  if (IsValidApplicationId(id)) return true;
  ShowWarning(Message(messages::kInvalidApplicationId) + Message(messages::kApplicationIdRules));
  return false;
}

void BrowseOutputFile(Edit& field, const std::u16string& defaultExtension,
                      std::uint32_t filterName) {
  FrontEnd& frontEnd = *TheServices().frontEnd;
  FileDialogRequest request;
  request.owner = frontEnd.FocusWindow();
  request.kind = FileDialogKind::kSave;
  request.title = Message(messages::kSelectDestination);
  request.filter = Message(filterName) + u" (*.apk)|*.apk||";
  request.defaultExtension = defaultExtension;
  request.startName = StartNameOf(field);
  if (const auto path = frontEnd.ChooseFile(request)) field.text = WithForwardSlashes(*path);
}

std::u16string OutputFileOf(const Edit& field) {
  constexpr std::size_t kLongest = 256;
  return WithForwardSlashes(field.text.substr(0, kLongest));
}

bool StoreSetting(const std::u16string& key, const std::u16string& value) {
  if (SettingsEquals(key, value)) return false;
  return SettingsSet(key, value);
}

}  // namespace qutav
