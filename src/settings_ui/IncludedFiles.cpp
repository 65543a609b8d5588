#include "settings_ui/IncludedFiles.h"

#include "platform/Services.h"
#include "platform/Text.h"
#include "settings_ui/FileChooser.h"
#include "settings_ui/FolderChooser.h"
#include "support/Paths.h"
#include "win/ExtensionCache.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {
namespace {

void AddRow(ListBox& list, const std::u16string& row) {
  list.AddString(row);
  list.FitListExtent();
}

void AddUserRows(ListBox& list) {
  const int count = IncludedItemCount(SettingsGet(keys::kIncludedCount));
  for (int i = 0; i < count; ++i) {
    const std::u16string item = SettingsGet(keys::kIncludedItem + ToDecimal(i));
    if (!item.empty()) list.AddString(WithBackslashes(item));
  }
}

}  // namespace

std::vector<std::u16string> ExtensionRows() {
  std::u16string folder;
  std::vector<std::u16string> names;
  GetExtensionList(folder, names);
  return names;
}

void FillIncludedFiles(ListBox& list) {
  const std::u16string baseName = SettingsGet(keys::kMovieBaseName);
  list.AddString(baseName + u".qmv");
  list.AddString(baseName + u"-app.xml");
  for (const std::u16string& name : ExtensionRows()) list.AddString(name);
  AddUserRows(list);
  list.FitListExtent();
}

bool AddIncludedFile(ListBox& list, const std::u16string& startFolder) {
  const auto path = ChooseFileToOpen(Message(messages::kAllFiles) + u" (*.*)|*.*||", startFolder);
  if (!path) return false;
  const std::u16string row = MakeRelative(*path, MovieFolder());
  if (list.FindStringExact(row) >= 0) return false;
  AddRow(list, row);
  return true;
}

bool AddIncludedFolder(ListBox& list) {
  const FolderChooser chooser{FolderChooser::kNewDialogStyle,
                              Message(messages::kChoosePackagedFolder)};
  std::u16string path;
  if (chooser.Browse(TheServices().frontEnd->FocusWindow(), &path) != FolderChooser::kChosen) {
    return false;
  }
  AddRow(list, MakeRelative(path, MovieFolder()));
  return true;
}

bool DeleteIncludedRow(ListBox& list, int guardedRows) {
  const int selected = list.GetCurSel();
  if (selected < 0) return false;
  if (selected >= guardedRows) list.DeleteString(selected);
  list.FitListExtent();
  return true;
}

void StoreIncludedItem(int number, const std::u16string& row) {
  SettingsSet(keys::kIncludedItem + ToDecimal(number), WithForwardSlashes(row));
}

}  // namespace qutav
