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
  DPI_AWARENESS_CONTEXT formerAwareness_;
  bool isOutermost_;
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
};

/// Inside a scope, gives the thread the host's own look and resolution again for as long as this
/// lives: for what the host shows when we call it.
class HostScope {
 public:
  HostScope();
  ~HostScope();
  HostScope(const HostScope&) = delete;
  HostScope& operator=(const HostScope&) = delete;

 private:
  DPI_AWARENESS_CONTEXT ours_ = nullptr;
  ULONG_PTR cookie_ = 0;
};

}  // namespace qutav
