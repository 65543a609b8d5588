// What a user does to a dialog, by the labels of its controls. These are addressed by their English
// label, the second of the same label with "#2" behind it, and so on.
#pragma once

#include <string>

#include "framework/CDialog.h"
#include "framework/scripted/Hands.h"

namespace qutav {

/// Null when there is none.
Control* FindControl(const CDialog& dialog, const std::u16string& label);

/// Types a text, chooses a row of a drop list by its text, or switches a check box, a radio button
/// or the row of a check list, addressed by the row's text, with "true" and "false". False when
/// there is no control that a user could give this value now.
bool SetByUser(Hands& hands, const CDialog& dialog, const std::u16string& label,
               const std::u16string& value);

/// Chooses a row of a list by its text; false when that is not possible now.
bool SelectByUser(Hands& hands, const CDialog& dialog, const std::u16string& label,
                  const std::u16string& row);

/// A button or image button that can be pressed now, or null.
Clickable* FindButton(const CDialog& dialog, const std::u16string& label);

}  // namespace qutav
