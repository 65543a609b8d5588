// What windows of ours need around them: the look and the sharpness that our manifest asks for,
// whatever the host's own manifest says, and GDI+.
#pragma once

#include "platform/windows/GdiPlus.h"
#include "platform/windows/System.h"

namespace qutav {

/// The module that this code is in: the library, or a program that has it linked in.
HINSTANCE OurModule();

/// Windows that are created while this lives get the common controls of our manifest
/// (`ActivateActCtx`) and are drawn at the resolution of their monitor
/// (`SetThreadDpiAwarenessContext`). Scopes nest.
class WindowScope {
 public:
  WindowScope();
  ~WindowScope();
  WindowScope(const WindowScope&) = delete;
  WindowScope& operator=(const WindowScope&) = delete;

 private:
  GdiPlusSession gdiPlus_;
  DPI_AWARENESS_CONTEXT hostAwareness_;
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
};

}  // namespace qutav
