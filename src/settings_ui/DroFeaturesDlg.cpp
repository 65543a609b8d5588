#include "settings_ui/DroFeaturesDlg.h"

#include "framework/layout/Parts.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "settings_ui/FeatureFile.h"
#include "support/HostConfiguration.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// Dialog units.
constexpr int kListWidth = 260;

bool IsManualMode() {
  return EqualsIgnoringCase(SettingsGet(keys::kIgnoreManifestAdditions), u"true");
}

}  // namespace

std::vector<std::u16string> FeatureNames;
std::vector<std::u16string> FeatureDescriptions;
DescriptorDocument FeatureParser;

CDroFeaturesDlg::CDroFeaturesDlg()
    : CPropertyPage(u"CDroFeaturesDlg", u"Permissions", texts::kPermissionsTitle),
      manual_(&Add<CheckBox>(u"Manually manage permissions and manifest additions in the "
                             u"application descriptor file",
                             texts::kPermissionsManual)) {
  using namespace layout;
  auto& invitation =
      Add<Label>(u"Select the permissions below that will be required in your application:",
                 texts::kPermissionsInvitation);
  list_ = &Add<CheckList>(u"Permission Name", messages::kPermissionName);
  list_->fullRowSelect = true;
  description_ = &Add<Edit>(u"Description:", texts::kPermissionsDescription);
  description_->style = EditStyle::kReadOnlyLines;
  manual_->onClick = [this] { OnManualClicked(); };
  list_->onChange = [this] { OnListChanged(); };
  SetLayout(Column({Wrapped(*manual_, kListWidth),
                    Column({Wrapped(invitation, kListWidth), List(*list_, 9, kListWidth)}),
                    Above(*description_, Lines(*description_, 4))},
                   kUnrelated));
}

int CDroFeaturesDlg::InitFeatureParser() {
  FeatureParser.Close();
  return FeatureParser.InitParser();
}

bool CDroFeaturesDlg::ReadFeatures() {
  FeatureNames.clear();
  FeatureDescriptions.clear();
  if (FeatureParser.ParseFile(HostConfigurationFile(u"Features.xml")) != 0) return false;
  const auto features = ReadFeatureRows(*FeatureParser.Document());
  if (!features) return false;
  for (const Feature& feature : *features) {
    FeatureNames.push_back(feature.name);
    FeatureDescriptions.push_back(feature.description);
  }
  return true;
}

bool CDroFeaturesDlg::OnInitDialog() {
  if (InitFeatureParser() != 0) return false;
  description_->text = Message(messages::kSelectRowForDescription);
  const std::vector<std::u16string> manifest = CurrentDescriptor.GetManifestPermissions();
  if (!ReadFeatures()) return false;
  for (const std::u16string& name : FeatureNames) list_->InsertRow(name);
  CheckPermissionsOf(manifest);
  ShowManualMode(IsManualMode());
  initialised = true;
  return CPropertyPage::OnInitDialog();
}

void CDroFeaturesDlg::CheckPermissionsOf(const std::vector<std::u16string>& manifest) {
  for (const std::u16string& permission : manifest) {
    if (!CheckRows(permission)) AddRowFromDescriptor(permission);
  }
}

// A name that the file holds twice is checked twice; false when no row has it.
bool CDroFeaturesDlg::CheckRows(const std::u16string& permission) {
  bool found = false;
  for (std::size_t i = 0; i < FeatureNames.size(); ++i) {
    if (FeatureNames[i] != permission) continue;
    list_->SetCheck(static_cast<int>(i), true);
    found = true;
  }
  return found;
}

void CDroFeaturesDlg::AddRowFromDescriptor(const std::u16string& permission) {
  list_->InsertRow(permission);
  list_->SetCheck(list_->GetCount() - 1, true);
  FeatureNames.push_back(permission);
  FeatureDescriptions.push_back(Message(messages::kPermissionFoundInDescriptor));
}

void CDroFeaturesDlg::ShowManualMode(bool manual) {
  list_->enabled = !manual;
  manual_->checked = manual;
}

void CDroFeaturesDlg::OnListChanged() {
  const int row = list_->FirstSelected();
  description_->text = row < 0 ? Message(messages::kSelectRowForDescription)
                               : FeatureDescriptions.at(static_cast<std::size_t>(row));
  changed = true;
}

void CDroFeaturesDlg::OnManualClicked() {
  changed = true;
  SettingsSet(keys::kIgnoreManifestAdditions, manual_->checked ? u"true" : u"false");
  list_->enabled = !manual_->checked;
}

int CDroFeaturesDlg::SavePermissions() {
  if (!initialised) return 0;
  if (!IsManualMode()) CurrentDescriptor.SetManifestPermissions(list_->CheckedRows());
  return 1;
}

}  // namespace qutav
