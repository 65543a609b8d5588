#include "System.h"

#include <windows.h>

namespace launcher {
namespace {

std::string Utf8(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
  utf8.pop_back();  // the terminator
  return utf8;
}

}  // namespace

unsigned long ProcessId() { return GetCurrentProcessId(); }

}  // namespace launcher

int wmain(int count, wchar_t** arguments) {
  std::vector<std::string> utf8;
  for (int i = 1; i < count; ++i) utf8.push_back(launcher::Utf8(arguments[i]));
  return launcher::Run(utf8);
}
