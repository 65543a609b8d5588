#include "platform/windows/GdiPlus.h"

#include "platform/windows/System.h"
// behind the system's own header
#include <objidl.h>
// behind objidl.h
#include <gdiplus.h>

namespace qutav {

static_assert(sizeof(std::uintptr_t) == sizeof(ULONG_PTR));

GdiPlusSession::GdiPlusSession() {
  const Gdiplus::GdiplusStartupInput input;
  running_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok;
}

GdiPlusSession::~GdiPlusSession() {
  if (running_) Gdiplus::GdiplusShutdown(token_);
}

}  // namespace qutav
