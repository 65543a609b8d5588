// The model of one page of a property sheet. It is created when it is first shown.
#pragma once

#include <cstdint>

#include "framework/CDialog.h"

namespace qutav {

/// Flags of a page, with the values of the system's PSP_ constants.
inline constexpr std::uint32_t kPageHasHelp = 0x20;
inline constexpr std::uint32_t kPageUsesCallback = 0x80;

class CPropertyPage : public CDialog {
 public:
  /// `englishTitle` is the English text on the page's tab, by which scripts turn to it; `titleId`
  /// is the catalogue's id of that text.
  CPropertyPage(std::u16string className, std::u16string englishTitle, std::uint32_t titleId)
      : CDialog(std::move(className), titleId, nullptr), englishTitle_(std::move(englishTitle)) {}

  const std::u16string& EnglishTitle() const { return englishTitle_; }

  std::uint32_t flags = 0;

 private:
  std::u16string englishTitle_;
};

}  // namespace qutav
