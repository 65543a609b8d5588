#pragma once

#include "framework/CPropertySheet.h"
#include "framework/ModalEvents.h"

namespace qutav {

/// Shows a sheet in a property sheet of the system, modal over the active window, until it ends;
/// its result.
int RunPropertySheetWindow(CPropertySheet& sheet, ModalEvents& events);

}  // namespace qutav
