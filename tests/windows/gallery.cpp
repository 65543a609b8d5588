// Shows each dialog that the settings sheet does not lead to, for pictures of them: what a script
// says is done to them.
//
// usage: gallery LIBRARY DOCUMENT-FOLDER LANGUAGE-CODE
#include <cstdio>
#include <filesystem>

#include "descriptor/DescriptorDocument.h"
#include "framework/FrontEnds.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "platform/windows/System.h"
#include "settings_ui/FileTypeDlg.h"
#include "settings_ui/ProgressDlg.h"
#include "settings_ui/SettingsPages.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "settings_ui/TimestampRetryDlg.h"
#include "win/InterfaceLanguage.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

FileTypeRecord SavedGame() {
  FileTypeRecord record;
  record.name = "com.example.game.save";
  record.extension = "gsv";
  record.description = u"Saved game";
  record.contentType = u"application/x-game-save";
  record.image48x48 = u"icons/icon48x48.png";
  return record;
}

void OpenDocument(const std::u16string& folder) {
  SettingsSet(keys::kMovieFolder, folder);
  SettingsSet(keys::kMovieBaseName, u"Game");
  CurrentDescriptor.InitParser();
  CurrentDescriptor.Load(folder + u"Game-app.xml");
}

void ShowDesktopPages() {
  CAppSettingsDlg general;
  general.DoModal();
  CAdvancedSettingsDlg advanced;
  advanced.DoModal();
}

void ShowDialogs() {
  CProgressDlg(nullptr).DoModal();
  CSignaturePasswordDlg(nullptr).DoModal();
  CTimestampRetryDlg(nullptr).DoModal();
  FileTypeRecord record = SavedGame();
  CFileTypeDlg(nullptr, record).DoModal();
}

}  // namespace
}  // namespace qutav

int main(int count, char** arguments) {
  using namespace qutav;
  if (count != 4 || LoadLibraryA(arguments[1]) == nullptr) {
    std::fprintf(stderr, "usage: gallery LIBRARY DOCUMENT-FOLDER LANGUAGE-CODE\n");
    return 2;
  }
  InstallSystemServices();
  TheServices().frontEnd = &SystemFrontEnd();
  TheServices().language->SetThreadInterfaceLanguage(LanguageIdForCode(FromUtf8(arguments[3])));
  OpenDocument(FromUtf8(arguments[2]) + u"\\");
  ShowDialogs();
  ShowDesktopPages();
  return 0;
}
