#pragma once

#include <utility>

#include "platform/windows/System.h"

namespace qutav {

/// A handle of the system, closed at the end of its life. Both values that stand for none are one
/// here.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE value) : value_(value == INVALID_HANDLE_VALUE ? nullptr : value) {}
  ~Handle() { Close(); }
  Handle(Handle&& other) noexcept : value_(std::exchange(other.value_, nullptr)) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE Value() const { return value_; }
  bool IsOpen() const { return value_ != nullptr; }

  /// Closes now; false when the system refuses.
  bool Close() {
    const HANDLE value = std::exchange(value_, nullptr);
    return value == nullptr || CloseHandle(value) != 0;
  }

 private:
  HANDLE value_ = nullptr;
};

}  // namespace qutav
