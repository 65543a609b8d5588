// The model of a modal property sheet.
#pragma once

#include <string>
#include <vector>

#include "framework/CPropertyPage.h"
#include "framework/SheetWindow.h"

namespace qutav {

/// Command ids of the sheet's own buttons.
inline constexpr int kIdHelp = 9;
inline constexpr int kIdApply = 12321;

/// What a scroll bar reports, with the values of the system's SB_ constants.
enum class ScrollCode : int {
  kLineUp = 0,
  kLineDown = 1,
  kPageUp = 2,
  kPageDown = 3,
  kThumbPosition = 4,
  kThumbTrack = 5,
  kTop = 6,
  kBottom = 7,
  kEndScroll = 8,
};

class CPropertySheet : public CDialog {
 public:
  /// Opens on its first page when there is no start page of that index.
  CPropertySheet(std::u16string className, std::uint32_t titleId, int startPage);

  /// Pages are shown in the order in which they are added. A page must outlive the sheet's window.
  void AddPage(CPropertyPage& page) { pages_.push_back(&page); }
  const std::vector<CPropertyPage*>& Pages() const { return pages_; }

  /// Makes a page the active one and, once the sheet is shown, creates it unless it has been shown
  /// before. An index without a page changes nothing.
  void SetActivePage(int index);
  int GetActiveIndex() const { return activePage_; }

  int DoModal();
  /// A front end gives its window before `Create` and takes it back after `Destroy`.
  void Attach(SheetWindow* window) { window_ = window; }
  void Destroy() override;

  /// The command of the Help button.
  virtual void OnHelp() {}
  virtual void OnVScroll(ScrollCode, int /*thumbPosition*/) {}
  /// True when it has been dealt with.
  virtual bool OnMouseWheel(int /*zDelta*/) { return false; }

 protected:
  bool OnInitDialog() override;
  SheetWindow& Window() const { return *window_; }
  /// The button with a command id; null without one.
  Button* GetButton(int commandId) const;

 private:
  Button& AddCommand(const std::u16string& label, std::uint32_t captionId, int commandId);
  bool HasPage(int index) const;
  void ShowActivePage();

  std::vector<CPropertyPage*> pages_;
  int activePage_;
  bool shown_ = false;
  SheetWindow* window_ = nullptr;
};

}  // namespace qutav
