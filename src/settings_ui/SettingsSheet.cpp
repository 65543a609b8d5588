#include "settings_ui/SettingsSheet.h"

#include <vector>

#include "framework/MessageBoxes.h"
#include "packaging/DocumentDescriptor.h"
#include "packaging/PublishDriver.h"
#include "platform/Services.h"
#include "settings_ui/SettingsPages.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "support/HelpLinks.h"
#include "support/Paths.h"
#include "support/RegistryStore.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

constexpr int kPublishCommand = 8085;
constexpr int kPublishWidening = 5;  // on either side

bool IsIosForm() { return SettingsEquals(keys::kPublishIpa, u"true"); }

bool CheckIosPackager() {
  if (TheServices().files->Exists(SettingsGet(keys::kLaunchPath) + u"DRN/lib/drn.jar")) return true;
  ShowInformation(Message(messages::kIosFilesNotInstalled));
  return false;
}

}  // namespace

CSettingsPropSheet::CSettingsPropSheet(std::uint32_t titleId)
    : CPropertySheet(u"CSettingsPropSheet", titleId, 0) {}

void CSettingsPropSheet::AddPages(SettingsPages& pages, bool ios) {
  settingsPages_ = &pages;
  const std::vector<CPropertyPage*> android = {&pages.general, &pages.androidDeployment,
                                               &pages.icons, &pages.permissions, &pages.languages};
  const std::vector<CPropertyPage*> iphone = {&pages.general, &pages.iosDeployment, &pages.icons,
                                              &pages.languages};
  for (CPropertyPage* page : ios ? iphone : android) AddPage(*page);
}

bool CSettingsPropSheet::OnInitDialog() {
  CPropertySheet::OnInitDialog();
  MendHelpButton();
  PutPublishInPlaceOfApply();
  SetupScrolling(Window());
  return true;
}

// The one text that is mended.
void CSettingsPropSheet::MendHelpButton() {
  Button* help = GetButton(kIdHelp);
  if (help->text == u"?") help->text = u"Aiuto";
}

void CSettingsPropSheet::PutPublishInPlaceOfApply() {
  Rectangle place = Window().ButtonRectangle(kIdApply);
  place.left -= kPublishWidening;
  place.right += kPublishWidening;
  Remove(*GetButton(kIdApply));
  auto& publish = AddAfter<Button>(*GetButton(kIdCancel), u"Publish", messages::kPublishButton);
  publish.commandId = kPublishCommand;
  publish.place = place;
  publish.onClick = [this] { SheetPublish(); };
}

void CSettingsPropSheet::OnVScroll(ScrollCode code, int thumbPosition) {
  ScrollByBar(Window(), code, thumbPosition);
}

bool CSettingsPropSheet::OnMouseWheel(int zDelta) {
  ScrollByWheel(Window(), zDelta);
  return true;
}

void CSettingsPropSheet::SheetOk() {
  bool reported = false;
  if (!(IsIosForm() ? StoreIosPages(reported) : StoreAndroidPages(reported))) return;
  SettingsSet(keys::kExitOk, reported ? u"true" : u"false");
  EndDialog(kIdOk);
}

template <typename Page>
void CSettingsPropSheet::StoreDeployment(Page& page, bool& reported) {
  if (!page.initialised) return;
  page.SaveToSettings(false);
  reported = reported || page.changed;
}

bool CSettingsPropSheet::StoreAndroidPages(bool& reported) {
  StoreDeployment(settingsPages_->androidDeployment, reported);
  settingsPages_->permissions.SavePermissions();
  reported = reported || settingsPages_->permissions.changed;
  if (settingsPages_->languages.initialised) settingsPages_->languages.SaveLanguages();
  return StoreGeneralPage(reported);
}

// The languages are not stored here: on this form they reach the descriptor through Publish alone.
bool CSettingsPropSheet::StoreIosPages(bool& reported) {
  StoreDeployment(settingsPages_->iosDeployment, reported);
  return StoreGeneralPage(reported);
}

// The last to be stored, as it writes the file; false when it refused. Icons went into the document
// when they were chosen.
bool CSettingsPropSheet::StoreGeneralPage(bool& reported) {
  CIpaSettingsDlg& general = settingsPages_->general;
  if (general.initialised) {
    if (general.StoreToDescriptor() != 0) return false;
    reported = reported || general.changed;
  }
  const CIconPreviewDlg& icons = settingsPages_->icons;
  reported = reported || (icons.initialised && icons.IsIconChanged());
  return true;
}

void CSettingsPropSheet::SheetPublish() {
  const bool ios = IsIosForm();
  if (CommonJavaPath().empty()) {
    ShowWarning(Message(messages::kJavaMissing));
    return;
  }
  if (ios) {
    PublishIos();
  } else {
    PublishAndroid();
  }
}

void CSettingsPropSheet::PublishAndroid() {
  settingsPages_->permissions.SavePermissions();
  if (settingsPages_->languages.initialised) settingsPages_->languages.SaveLanguages();
  if (!ValidateDeployment(settingsPages_->androidDeployment)) return;
  if (!StoreGeneralPageOrDocument() || !HasSigningMaterial()) return;
  PublishDriver(PublishTargetApk, true);
  settingsPages_->androidDeployment.FillDeviceList(false);
}

void CSettingsPropSheet::PublishIos() {
  if (!CheckIosPackager()) return;
  if (!ValidateDeployment(settingsPages_->iosDeployment)) return;
  if (settingsPages_->languages.initialised) settingsPages_->languages.SaveLanguages();
  CIpaSettingsDlg& general = settingsPages_->general;
  if (general.initialised && general.StoreToDescriptor() != 0) return;
  PublishDriver(PublishTargetIpa, true);
}

// The page comes to the front for it, and stays there when it refuses, so that the user sees what
// the message is about.
template <typename Page>
bool CSettingsPropSheet::ValidateDeployment(Page& page) {
  const int active = GetActiveIndex();
  if (active != kDeploymentPage) SetActivePage(kDeploymentPage);
  // A page that could not load itself is never stored half.
  if (!page.initialised) return false;
  if (page.SaveToSettings(true) != 0) return false;
  if (active != kDeploymentPage) SetActivePage(active);
  return true;
}

// The publish run reads the file anew.
bool CSettingsPropSheet::StoreGeneralPageOrDocument() {
  if (settingsPages_->general.initialised) return settingsPages_->general.StoreToDescriptor() == 0;
  SaveDocumentDescriptor();
  return true;
}

bool CSettingsPropSheet::HasSigningMaterial() {
  std::u16string digitalSign;
  GetRegistryString(u"DigitalSign", digitalSign);
  if (digitalSign != u"sign") return true;
  if (SettingsGet(keys::kCertificatePath).empty()) {
    SetActivePage(kDeploymentPage);
    return false;
  }
  if (!SettingsGet(keys::kCertificatePassword).empty()) return true;
  return CSignaturePasswordDlg(TheServices().frontEnd->FocusWindow()).DoModal() == kIdOk;
}

void CSettingsPropSheet::SheetHelp() { OpenHelpLink(IsIosForm() ? kIosHelp : kAndroidHelp); }

bool OpenSettingsSheet(WindowHandle, int startPage) {
  if (LoadDocumentDescriptor(false) != kLoaded) return false;
  const bool ios = IsIosForm();
  CSettingsPropSheet sheet(ios ? messages::kIosSettingsTitle : messages::kAndroidSettingsTitle);
  SettingsPages pages;
  for (CPropertyPage* page : std::initializer_list<CPropertyPage*>{
           &pages.desktopGeneral, &pages.general, &pages.androidDeployment, &pages.icons,
           &pages.desktopAdvanced, &pages.iosDeployment, &pages.permissions, &pages.languages}) {
    page->flags = kPageHasHelp | kPageUsesCallback;
  }
  sheet.AddPages(pages, ios);
  if (startPage != 0) sheet.SetActivePage(startPage);
  sheet.DoModal();
  return true;
}

}  // namespace qutav
