#pragma once

#include "framework/CDialog.h"
#include "framework/ModalEvents.h"

namespace qutav {

/// Shows a dialog in a window of its own, modal over its parent, until it ends; its result.
int RunDialogWindow(CDialog& dialog, ModalEvents& events);

}  // namespace qutav
