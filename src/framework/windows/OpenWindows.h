// The windows that show models now. All belong to the host's one thread of interface.
#pragma once

#include "framework/windows/ControlHost.h"

namespace qutav::OpenWindows {

void Add(ControlHost& host);
void Remove(ControlHost& host);
/// Brings every window up to what its model says: a handler may have changed any of them.
void Update();
/// Null for a dialog that is not on the screen.
ControlHost* HostOf(const CDialog& dialog);
/// The window of a control; null without one.
ControlBinder* BinderOf(const Control& control);
/// A message of the thread, before it goes where it belongs.
void PreTranslate(const MSG& message);

}  // namespace qutav::OpenWindows
