#include "framework/windows/WindowText.h"

#include "platform/windows/Wide.h"

namespace qutav {

std::u16string WindowText(HWND window) {
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
  text.resize(static_cast<std::size_t>(
      GetWindowTextW(window, WideBuffer(text), static_cast<int>(text.size()))));
  return text;
}

void SetWindowTextIfOther(HWND window, const std::u16string& text) {
  if (WindowText(window) != text) SetWindowTextW(window, Wide(text));
}

}  // namespace qutav
