// Controls as a transcript tells them.
#pragma once

#include <nlohmann/json.hpp>

#include "framework/CDialog.h"
#include "framework/scripted/AnswerScript.h"

namespace qutav {

/// Every control of a dialog with its state. Passwords are masked.
nlohmann::ordered_json RecordControls(const CDialog& dialog);

/// Settings or registry values that a script gives. Passwords are masked.
nlohmann::ordered_json RecordValues(const ScriptValues& values);

}  // namespace qutav
