// The three message boxes of the product. Each has its title and, unless another is given, the
// focus window as owner.
#pragma once

#include <optional>
#include <string>

#include "platform/FrontEnd.h"

namespace qutav {

using OwnerWindow = std::optional<WindowHandle>;

/// Information icon, OK.
void ShowInformation(const std::u16string& text, OwnerWindow owner = {});

/// Warning icon, OK.
void ShowWarning(const std::u16string& text, OwnerWindow owner = {});

/// Warning icon, OK and Cancel; true for OK.
bool AskQuestion(const std::u16string& text, OwnerWindow owner = {});

}  // namespace qutav
