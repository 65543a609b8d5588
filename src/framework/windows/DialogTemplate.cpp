#include "framework/windows/DialogTemplate.h"

#include <cstring>

namespace qutav {
namespace {

// Behind the header: no menu, the default class, no title, then the font.
constexpr wchar_t kTail[] = L"\0\0\0\x0008MS Shell Dlg";

}  // namespace

DialogTemplate::DialogTemplate(DWORD style, const Size& size)
    : words_((sizeof(DLGTEMPLATE) + sizeof kTail) / sizeof(DWORD) + 1) {
  DLGTEMPLATE header{};
  header.style = style | DS_SETFONT;
  header.cx = static_cast<short>(size.width);
  header.cy = static_cast<short>(size.height);
  auto* bytes = reinterpret_cast<char*>(words_.data());
  std::memcpy(bytes, &header, sizeof header);
  std::memcpy(bytes + sizeof header, kTail, sizeof kTail);
}

}  // namespace qutav
