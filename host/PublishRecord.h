#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace qutav::host {

/// The class of the settings sheet.
inline constexpr const char* kSheetClass = "CSettingsPropSheet";

/// The class of the dialog that stands while the packaging tool runs.
inline constexpr const char* kProgressDialogClass = "CProgressDlg";

/// What a transcript tells about one publish run.
class PublishRecord {
 public:
  void Take(const nlohmann::json& event);

  /// The packaging tool was started and not stopped by the user in its last attempt.
  bool PackagingEnded() const { return packagingStarted_ && !packagingCancelled_; }

  /// The user pressed Cancel in the last attempt, which may have come too late to stop it.
  bool CancelPressed() const { return cancelPressed_; }

  /// Something but plain information was shown since the last attempt began.
  bool WarnedAfterPackaging() const { return packagingStarted_ && warned_; }

  /// The settings sheet opened, which means that signing material was missing, and nobody
  /// pressed its Publish button.
  bool SheetWasLeft() const { return sheetOpened_ && !publishPressed_; }

  /// Nothing was shown at all.
  bool IsEmpty() const { return empty_; }

  bool SheetOpened() const { return sheetOpened_; }

  /// The button by which the settings sheet was left the last time, empty for none.
  const std::string& SheetAnswer() const { return sheetAnswer_; }

  /// The pages of the sheet whose controls the script wanted to see.
  const std::vector<nlohmann::json>& PagesShown() const { return pagesShown_; }

 private:
  bool empty_ = true;
  bool packagingStarted_ = false;
  bool packagingCancelled_ = false;
  bool cancelPressed_ = false;
  bool behindProgress_ = false;
  bool warned_ = false;
  bool sheetOpened_ = false;
  bool publishPressed_ = false;
  std::string sheetAnswer_;
  std::vector<nlohmann::json> pagesShown_;
};

}  // namespace qutav::host
