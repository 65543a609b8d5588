#pragma once

#include <cstdint>

namespace qutav {

/// GDI+ for as long as this lives (`GdiplusStartup`). Whoever draws or measures pictures owns one,
/// and lets go of all pictures first. Sessions nest. Never to be kept in a static object: GDI+ must
/// not be shut down while the library is unloaded.
class GdiPlusSession {
 public:
  GdiPlusSession();
  ~GdiPlusSession();
  GdiPlusSession(const GdiPlusSession&) = delete;
  GdiPlusSession& operator=(const GdiPlusSession&) = delete;

  /// False when the system has refused; no picture can be loaded then.
  bool IsRunning() const { return running_; }

 private:
  std::uintptr_t token_ = 0;
  bool running_ = false;
};

}  // namespace qutav
