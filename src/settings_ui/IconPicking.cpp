#include "settings_ui/IconPicking.h"

#include "framework/MessageBoxes.h"
#include "platform/Services.h"
#include "settings_ui/FileChooser.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav {

std::optional<std::u16string> ChooseIconFile() {
  return ChooseFileToOpen(Message(messages::kImageFile) + u" (*.png)|*.png||");
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
