// One control of a dialog, as its front end shows it and its handlers know it.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace qutav {

enum class ControlKind { kText, kEdit, kPassword, kCheckBox, kButton, kProgress };

struct Control {
  ControlKind kind = ControlKind::kText;
  std::u16string label;      ///< in English; scripts and tests address the control by it
  std::uint32_t textId = 0;  ///< the catalogue's id of the shown text, 0 for none
  std::u16string text;       ///< what a user typed, or the shown text
  bool checked = false;
  bool enabled = true;
  bool visible = true;
  bool isDefault = false;                    ///< the button that Enter presses
  int rangeEnd = 0;                          ///< of a progress bar, which begins at 0
  std::chrono::milliseconds marqueeStep{0};  ///< a bar that shows work without an end; 0: none
  std::function<void()> onClick;
};

}  // namespace qutav
