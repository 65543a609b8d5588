#include "packaging/SelfSignDlg.h"

#include <optional>

#include "framework/Fonts.h"
#include "framework/MessageBoxes.h"
#include "packaging/CountryCodes.h"
#include "packaging/PackagerCommand.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "support/HelpLinks.h"
#include "support/Paths.h"
#include "support/ProcessRunner.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

// Dialog units.
constexpr int kCountryWidth = 50;
constexpr int kTypeWidth = 70;

// Appends an option with a field's text in double quotes; false when the field is empty.
bool AppendRequired(std::u16string& arguments, const std::u16string& option, const Control& field) {
  if (field.text.empty()) return false;
  arguments += option + u" \"" + field.text + u"\"";
  return true;
}

bool HasKeystoreEnding(const std::u16string& path) {
  const std::size_t dot = path.rfind(u'.');
  if (dot == path.npos) return false;
  const std::u16string ending = ToLowerAscii(path.substr(dot));
  return ending == u".p12" || ending == u".pfx";
}

// The tool explains its use behind a wrong argument.
std::u16string BeforeUsage(const std::u16string& output) {
  return output.substr(0, output.find(u"usage:"));
}

// What a failed run says; nothing for a successful one, and a run that could not be followed counts
// as one.
std::optional<std::u16string> FailureText(std::int32_t exitCode, const std::u16string& output) {
  constexpr std::int32_t kWrongUsage = 2;
  constexpr std::int32_t kNotCreated = 11;
  if (exitCode <= 0) return {};
  if (exitCode == kNotCreated) return Message(messages::kErrorCreatingCertificate);
  return Message(messages::kCreatingCertificateFailed) +
         (exitCode == kWrongUsage ? BeforeUsage(output) : output);
}

}  // namespace

CSelfSignDlg::CSelfSignDlg(WindowHandle parent)
    : CDialog(u"CSelfSignDlg", texts::kCertificateTitle, parent) {
  using namespace layout;
  SetLayout(Column(
      {Form(Joined({AddFields(), {AddType(), AddValidity(), AddDestination()}})), AddButtons()},
      kUnrelated));
}

layout::FormLines CSelfSignDlg::AddFields() {
  using namespace layout;
  publisher_ = &Add<Edit>(u"Publisher name:", texts::kCertificatePublisher);
  unit_ = &Add<Edit>(u"Organization unit:", texts::kCertificateUnit);
  organization_ = &Add<Edit>(u"Organization name:", texts::kCertificateOrganization);
  country_ = &Add<ComboBox>(u"Country:", texts::kCertificateCountry);
  country_->sorted = true;
  password_ = &Add<Edit>(u"Password:", texts::kCertificatePassword);
  password_->style = EditStyle::kPassword;
  confirmation_ = &Add<Edit>(u"Confirm password:", texts::kCertificateConfirmation);
  confirmation_->style = EditStyle::kPassword;
  return {Line(*publisher_),    Line(*unit_),
          Line(*organization_), Line(*country_, Fixed(*country_, kCountryWidth)),
          Line(*password_),     Line(*confirmation_)};
}

// There is no choice: every certificate has the longer key.
layout::FormLine CSelfSignDlg::AddType() {
  type_ = &Add<ComboBox>(u"Type:", texts::kCertificateType);
  type_->style = ComboStyle::kDropList;
  type_->enabled = false;
  return layout::Line(*type_, layout::Fixed(*type_, kTypeWidth));
}

layout::FormLine CSelfSignDlg::AddValidity() {
  using namespace layout;
  validity_ = &Add<Edit>(u"Validity period:", texts::kCertificateValidity);
  validity_->style = EditStyle::kDigits;
  auto& years = Add<Label>(u"years", texts::kCertificateYears);
  return Line(*validity_, Row({Number(*validity_), years}));
}

layout::FormLine CSelfSignDlg::AddDestination() {
  using namespace layout;
  destination_ = &Add<Edit>(u"Save as:", texts::kCertificateSaveAs);
  auto& browse = Add<Button>(u"Browse...", texts::kCertificateBrowse);
  browse.onClick = [this] { BrowseDestination(); };
  return Line(*destination_, Row({*destination_, browse}));
}

Layout CSelfSignDlg::AddButtons() {
  auto& help = Add<Button>(u"Help", texts::kCertificateHelp);
  help.onClick = [] { OpenHelpLink(kAndroidHelp); };
  auto& ok = Add<Button>(u"OK", texts::kCertificateOk);
  ok.isDefault = true;
  ok.onClick = [this] { OnOK(); };
  auto& cancel = Add<Button>(u"Cancel", texts::kCertificateCancel);
  cancel.onClick = [this] { OnCancel(); };
  return layout::Buttons({help, ok, cancel});
}

bool CSelfSignDlg::OnInitDialog() {
  for (const std::u16string& code : CountryCodes()) country_->AddString(code);
  country_->SetCurSel(country_->FindStringExact(u"US"));
  type_->AddString(u"1024-RSA");
  type_->SetCurSel(type_->AddString(u"2048-RSA"));
  validity_->text = u"25";
  if (IsOlderWindows()) {
    for (Edit* name : {publisher_, unit_, organization_}) name->fontFace = kEastAsianFace;
  }
  return CDialog::OnInitDialog();
}

bool CSelfSignDlg::BuildCertificateArguments(std::u16string& arguments) {
  if (!AppendRequired(arguments, u" -cn", *publisher_)) return false;
  if (!AppendRequired(arguments, u" -ou", *unit_)) return false;
  if (!AppendRequired(arguments, u" -o", *organization_)) return false;
  if (!AppendRequired(arguments, u" -c", *country_)) return false;
  if (!validity_->text.empty()) arguments += u" -validityPeriod " + validity_->text + u" ";
  arguments += u" " + type_->text;
  AddKeystoreEnding();
  if (!AppendRequired(arguments, u"", *destination_)) return false;
  return AppendRequired(arguments, u"", *password_);
}

void CSelfSignDlg::AddKeystoreEnding() {
  std::u16string& path = destination_->text;
  if (!path.empty() && !HasKeystoreEnding(path)) path += u".p12";
}

bool CSelfSignDlg::RunCertificateTool(const std::u16string& arguments) {
  if (CommonJavaPath().empty()) {
    ShowWarning(Message(messages::kJavaMissing));
    return false;
  }
  std::u16string output;
  const std::int32_t exitCode =
      RunProcess(PackagerHead() + u"-certificate " + arguments, true, output);
  if (const auto failure = FailureText(exitCode, output)) {
    ShowWarning(*failure);
    return false;
  }
  ShowInformation(Message(messages::kCertificateCreated));
  return true;
}

void CSelfSignDlg::OnOK() {
  std::u16string arguments;
  if (!BuildCertificateArguments(arguments)) {
    ShowWarning(Message(messages::kAllFieldsRequired));
    return;
  }
  if (!PasswordsMatch()) {
    ShowWarning(Message(messages::kPasswordsDiffer));
    return;
  }
  if (!MayWriteDestination() || !RunCertificateTool(arguments)) return;
  if (TheServices().files->Exists(destination_->text)) {
    SettingsSet(keys::kCertificatePath, WithForwardSlashes(destination_->text));
  }
  CDialog::OnOK();
}

bool CSelfSignDlg::PasswordsMatch() const {
  return !password_->text.empty() && password_->text == confirmation_->text;
}

bool CSelfSignDlg::MayWriteDestination() const {
  return !TheServices().files->Exists(destination_->text) ||
         AskQuestion(Message(messages::kOverwriteCertificate));
}

void CSelfSignDlg::BrowseDestination() {
  FileDialogRequest request;
  request.owner = TheServices().frontEnd->FocusWindow();
  request.kind = FileDialogKind::kSave;
  request.title = Message(messages::kSelectDestination);
  request.filter = Message(messages::kCertificateFile) + u" (*.p12)||";
  request.defaultExtension = u"p12";
  request.startName = StartName();
  const auto chosen = TheServices().frontEnd->ChooseFile(request);
  if (chosen) destination_->text = WithForwardSlashes(*chosen);
}

std::u16string CSelfSignDlg::StartName() const {
  const std::u16string& path = destination_->text;
  if (path.empty()) return SettingsGet(keys::kMovieBaseName);
  std::u16string name = path.substr(path.rfind(u'/') + 1);
  LastNameOfPath(name);
  return name;
}

}  // namespace qutav
