// A dialog template in memory: an empty dialog, which its model fills.
#pragma once

#include <vector>

#include "framework/Layout.h"
#include "platform/windows/System.h"

namespace qutav {

class DialogTemplate {
 public:
  /// The size is that of the client area, in dialog units of the system's dialog font.
  DialogTemplate(DWORD style, const Size& size);
  const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  std::vector<DWORD> words_;
};

}  // namespace qutav
