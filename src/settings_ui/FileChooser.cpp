#include "settings_ui/FileChooser.h"

#include "platform/Services.h"

namespace qutav {

std::optional<std::u16string> ChooseFileToOpen(const std::u16string& filter,
                                               const std::u16string& startFolder) {
  FrontEnd& frontEnd = *TheServices().frontEnd;
  FileDialogRequest request;
  request.owner = frontEnd.FocusWindow();
  request.filter = filter;
  request.startFolder = startFolder;
  return frontEnd.ChooseFile(request);
}

}  // namespace qutav
