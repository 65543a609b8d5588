// What the windows of a dialog's controls show, as a transcript tells controls.
#pragma once

#include <nlohmann/json.hpp>

#include "framework/CDialog.h"

namespace qutav {

/// Every control of a dialog that is shown. Texts, rows, marks and states are the windows'; what
/// has no form in a window, such as an image, is the model's.
nlohmann::ordered_json RecordWindows(const CDialog& dialog);

}  // namespace qutav
