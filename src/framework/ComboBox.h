// A combo box: rows to choose from and, where typing is allowed, text of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "framework/Control.h"

namespace qutav {

enum class ComboStyle {
  kDropDown,  ///< the text can be typed
  kDropList,  ///< only rows can be chosen
};

class ComboBox final : public Control {
 public:
  void Accept(ControlVisitor& visitor) override;

  ComboStyle style = ComboStyle::kDropDown;
  bool sorted = false;
  /// Runs when a user has chosen a row; nothing that the program does runs it.
  std::function<void()> onSelectionEnd;

  /// Adds a row at its place in the order, or at the end; returns its index (`CB_ADDSTRING`).
  int AddString(const std::u16string& row);
  /// Adds a row at an index, in a sorted combo too (`CB_INSERTSTRING`).
  void InsertString(int index, const std::u16string& row);
  void ResetContent();
  /// The first row that begins with a text, -1 without one (`CB_FINDSTRING`).
  int FindString(const std::u16string& beginning) const;
  /// The first row that equals a text, -1 without one (`CB_FINDSTRINGEXACT`).
  int FindStringExact(const std::u16string& row) const;
  /// Chooses a row and shows it; an index without a row clears both (`CB_SETCURSEL`).
  void SetCurSel(int index);
  int GetCurSel() const { return selection_; }
  /// Shows a text and leaves the choice as it is (`WM_SETTEXT`).
  void SetText(std::u16string shown) {
    text = std::move(shown);
    caretAtEnd_ = false;
  }
  /// Shows the end of a text that is too long for the field (`CB_SETEDITSEL`).
  void MoveCaretToEnd() { caretAtEnd_ = true; }
  bool IsCaretAtEnd() const { return caretAtEnd_; }
  int GetCount() const { return static_cast<int>(rows_.size()); }
  const std::u16string& GetRow(int index) const {
    return rows_.at(static_cast<std::size_t>(index));
  }
  const std::vector<std::u16string>& Rows() const { return rows_; }

  /// Widens the opened list to its widest row and a "0"; leaves a combo without rows alone.
  void FitDropWidth();
  int DroppedWidth() const { return droppedWidth_; }

  /// As a user does. What is typed takes the choice away, also when it reads like a row.
  void Choose(int index);
  void Type(std::u16string typed);

 private:
  std::vector<std::u16string> rows_;
  int selection_ = -1;
  bool caretAtEnd_ = false;
  int droppedWidth_ = 0;
};

}  // namespace qutav
