// The entry of the library. The host loads it and calls this one export once.
#pragma once

#include <cstdint>

#include "framework/CWinApp.h"

#if defined(__GNUC__)
#define QUTAV_EXPORT __attribute__((visibility("default")))
#endif

namespace qutav {

/// The application object; the one static instance is built when the library is loaded.
class CQuTavApp : public CWinApp {
 public:
  bool InitInstance() override;
};

}  // namespace qutav

/// Copies the host's table of up to 56 pointer-sized words and defines the seven script functions.
/// Returns the host's answer to the last definition; 0, and nothing defined, when the host cannot
/// define functions.
extern "C" QUTAV_EXPORT std::int32_t KR_InitWrapper(const void* table, std::uint32_t size);
