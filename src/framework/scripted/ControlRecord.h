// Controls as a transcript tells them.
#pragma once

#include <nlohmann/json.hpp>

#include "framework/CDialog.h"

namespace qutav {

/// A control with its state. Passwords are masked.
nlohmann::ordered_json RecordControl(Control& control);

/// Every control of a dialog with its state. Passwords are masked.
nlohmann::ordered_json RecordControls(const CDialog& dialog);

}  // namespace qutav
