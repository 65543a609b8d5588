#include "framework/windows/WindowScope.h"

namespace qutav {
namespace {

// What the thread had before the outermost scope; null outside of all.
thread_local DPI_AWARENESS_CONTEXT hostAwareness = nullptr;

// Where a library's manifest stands among its resources, and a program's.
const WCHAR* ManifestOf(HINSTANCE module) {
  const bool isProgram = module == GetModuleHandleW(nullptr);
  return isProgram ? MAKEINTRESOURCEW(1) : MAKEINTRESOURCEW(2);
}

HANDLE OurContext() {
  ACTCTXW request{};
  request.cbSize = sizeof request;
  request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  request.hModule = OurModule();
  request.lpResourceName = ManifestOf(request.hModule);
  return CreateActCtxW(&request);
}

// Systems that lack the second kind of sharpness may have the first.
DPI_AWARENESS_CONTEXT SharpenThread() {
  const auto before = SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  if (before != nullptr) return before;
  return SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE);
}

}  // namespace

HINSTANCE OurModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&OurModule), &module);
  return module;
}

WindowScope::WindowScope()
    : formerAwareness_(SharpenThread()),
      isOutermost_(hostAwareness == nullptr),
      context_(OurContext()) {
  if (isOutermost_) hostAwareness = formerAwareness_;
  if (context_ != INVALID_HANDLE_VALUE) ActivateActCtx(context_, &cookie_);
}

WindowScope::~WindowScope() {
  if (cookie_ != 0) DeactivateActCtx(0, cookie_);
  if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
  if (isOutermost_) hostAwareness = nullptr;
  if (formerAwareness_ != nullptr) SetThreadDpiAwarenessContext(formerAwareness_);
}

HostScope::HostScope() {
  if (hostAwareness == nullptr) return;
  ours_ = SetThreadDpiAwarenessContext(hostAwareness);
  ActivateActCtx(nullptr, &cookie_);
}

HostScope::~HostScope() {
  if (cookie_ != 0) DeactivateActCtx(0, cookie_);
  if (ours_ != nullptr) SetThreadDpiAwarenessContext(ours_);
}

}  // namespace qutav
