#include "settings_ui/RecentFiles.h"

#include <algorithm>
#include <vector>

#include "platform/Services.h"
#include "support/Paths.h"
#include "support/RegistryStore.h"

namespace qutav {
namespace {

constexpr unsigned kLimit = 10;

// Looks for the path's beginning only, so that a path which another row continues is not added.
bool AddUnlessPresent(ComboBox& combo, const std::u16string& path) {
  if (combo.FindString(path) >= 0) return false;
  combo.AddString(path);
  return true;
}

}  // namespace

bool AddPathToCombo(ComboBox& combo, const std::u16string& path) {
  combo.SetText(path);
  const bool added = AddUnlessPresent(combo, path);
  if (added) combo.MoveCaretToEnd();
  return added;
}

void AddRecentFiles(ComboBox& combo, const std::u16string& registryList) {
  std::vector<std::u16string> paths;
  GetRegistryFileList(registryList, paths);
  for (const std::u16string& path : paths) {
    if (!path.empty() && TheServices().files->Exists(path)) AddUnlessPresent(combo, path);
  }
}

void SelectRecentFile(ComboBox& combo, const std::u16string& path) {
  const int found = path.empty() ? 0 : combo.FindString(WithBackslashes(path));
  combo.SetCurSel(std::max(found, 0));
}

void SaveRecentFiles(const ComboBox& combo, const std::u16string& registryList) {
  if (combo.GetCount() > 0) SaveRegistryFileList(registryList, kLimit, combo.Rows());
}

}  // namespace qutav
