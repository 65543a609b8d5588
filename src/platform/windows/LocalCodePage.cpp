#include "platform/Text.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"

namespace qutav {

std::string ToLocalCodePage(std::u16string_view text) {
  const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
  const int length = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(CP_ACP, 0, wide, length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide, length, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

std::u16string FromLocalCodePage(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  const int size = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
  std::u16string text(static_cast<std::size_t>(size), u'\0');
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, WideBuffer(text), size);
  return text;
}

}  // namespace qutav
