// How a transcript writes controls down, and how a script finds them.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "framework/CDialog.h"
#include "framework/scripted/AnswerScript.h"

namespace qutav {

/// The control with that English label; "Label#2" is the second of its label. Null without one.
Control* FindControl(CDialog& dialog, const std::u16string& label);

/// All controls; what a user typed into a password control is masked.
nlohmann::ordered_json RecordControls(const CDialog& dialog);

/// Values by key; those of passwords are masked.
nlohmann::ordered_json RecordValues(const ScriptValues& values);

}  // namespace qutav
