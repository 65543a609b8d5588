#include "framework/windows/WindowScope.h"

namespace qutav {
namespace {

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

}  // namespace

HINSTANCE OurModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&OurModule), &module);
  return module;
}

WindowScope::WindowScope()
    : hostAwareness_(SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2)),
      context_(OurContext()) {
  if (context_ != INVALID_HANDLE_VALUE) ActivateActCtx(context_, &cookie_);
}

WindowScope::~WindowScope() {
  if (cookie_ != 0) DeactivateActCtx(0, cookie_);
  if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
  if (hostAwareness_ != nullptr) SetThreadDpiAwarenessContext(hostAwareness_);
}

}  // namespace qutav
