#include "settings_ui/FolderChooser.h"

#include "platform/Services.h"

namespace qutav {

int FolderChooser::Browse(WindowHandle owner, std::u16string* outPath) const {
  if (outPath == nullptr) return kNoPath;
  const auto path = TheServices().frontEnd->ChooseFolder({owner, title, flags});
  if (!path) return kCancelled;
  if (path->empty()) return kNoPath;
  *outPath = *path;
  return kChosen;
}

}  // namespace qutav
