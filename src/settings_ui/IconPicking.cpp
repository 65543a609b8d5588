#include "settings_ui/IconPicking.h"

#include "framework/MessageBoxes.h"
#include "platform/Services.h"
#include "support/Paths.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

std::u16string RootContentFolder() { return WithBackslashes(SettingsGet(keys::kMovieFolder)); }

std::optional<std::u16string> ChooseIconFile() {
  FileDialogRequest request;
  request.owner = TheServices().frontEnd->FocusWindow();
  request.filter = Message(messages::kImageFile) + u" (*.png)|*.png||";
  return TheServices().frontEnd->ChooseFile(request);
}

bool IsBelowRoot(const std::u16string& path, const std::u16string& rootFolder) {
  return path.find(rootFolder) != path.npos;
}

bool AskToCopyIcon() { return AskQuestion(Message(messages::kIconMustBeCopied)); }

std::u16string CopyIcon(const std::u16string& file, const std::u16string& rootFolder,
                        const std::u16string& folderName) {
  Files& files = *TheServices().files;
  const std::u16string folder = rootFolder + folderName + u"\\";
  files.CreateFolder(folder);
  const std::u16string copy = folder + file.substr(file.rfind(u'\\') + 1);
  files.Copy(file, copy);
  return copy;
}

}  // namespace qutav
