// The controls of a dialog, as its front end shows them and its handlers know them.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/FrontEnd.h"

namespace qutav {

class ControlVisitor;

struct Control {
  Control() = default;
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual void Accept(ControlVisitor& visitor) = 0;

  /// Tells it from one that was at the same address before.
  const unsigned serial = nextSerial++;
  std::u16string label;         ///< in English; scripts and tests address the control by it
  std::uint32_t captionId = 0;  ///< the catalogue's id of the caption, 0 for none
  std::u16string caption;       ///< shown beside a field, and its name for screen readers
  std::u16string text;          ///< what a user typed or chose, or the shown text
  bool enabled = true;
  bool visible = true;

 private:
  inline static std::atomic<unsigned> nextSerial = 1;
};

/// Text that nobody can change.
struct Label final : Control {
  void Accept(ControlVisitor& visitor) override;
};

/// A frame with a heading around the controls that follow it, up to the next one.
struct GroupBox final : Control {
  void Accept(ControlVisitor& visitor) override;
};

enum class EditStyle { kPlain, kPassword, kMultiLine, kDigits, kReadOnly, kReadOnlyLines };

inline bool IsReadOnly(EditStyle style) {
  return style == EditStyle::kReadOnly || style == EditStyle::kReadOnlyLines;
}

struct Edit final : Control {
  void Accept(ControlVisitor& visitor) override;
  /// As a user does.
  void Type(std::u16string typed) { text = std::move(typed); }
  EditStyle style = EditStyle::kPlain;
  std::u16string fontFace;  ///< empty for the dialog's own
};

/// What a user can click.
struct Clickable : Control {
  /// As a user does.
  virtual void Click();
  std::function<void()> onClick;
};

struct Button final : Clickable {
  void Accept(ControlVisitor& visitor) override;
  bool isDefault = false;  ///< the button that Enter presses
  int commandId = 0;       ///< the number of its command message, 0 for any
  Rectangle place;         ///< where a sheet put it itself, in pixels; empty for the usual place
};

struct CheckBox final : Clickable {
  void Accept(ControlVisitor& visitor) override;
  void Click() override;
  bool checked = false;
};

class RadioGroup;

struct RadioButton final : Clickable {
  void Accept(ControlVisitor& visitor) override;
  void Click() override;
  bool checked = false;
  RadioGroup* group = nullptr;
};

/// Radio buttons of which at most one is checked. Each can be disabled by itself.
class RadioGroup {
 public:
  void Add(RadioButton& button);
  /// Checks one by its index and clears the others; an index without a button clears all.
  void Select(int index);
  void Select(const RadioButton& button);
  /// -1 when none is checked.
  int Selected() const;
  RadioButton& At(int index) const { return *buttons_.at(static_cast<std::size_t>(index)); }
  const std::vector<RadioButton*>& Buttons() const { return buttons_; }

 private:
  std::vector<RadioButton*> buttons_;
};

struct ProgressBar final : Control {
  void Accept(ControlVisitor& visitor) override;
  int rangeEnd = 0;                          ///< the range begins at 0
  std::chrono::milliseconds marqueeStep{0};  ///< a bar that shows work without an end; 0: none
};

}  // namespace qutav
