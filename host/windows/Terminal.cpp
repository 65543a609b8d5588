#include "host/Terminal.h"

#include "host/TextEncoding.h"
#include "platform/windows/Handle.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"

namespace qutav::host {
namespace {

bool IsConsole(HANDLE handle) {
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) != 0;
}

HANDLE OpenConsole(const wchar_t* name) {
  return CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                     nullptr, OPEN_EXISTING, 0, nullptr);
}

class SilentConsole {
 public:
  explicit SilentConsole(HANDLE input) : input_(input) {
    silent_ = GetConsoleMode(input_, &before_) != 0 &&
              SetConsoleMode(input_, before_ & ~static_cast<DWORD>(ENABLE_ECHO_INPUT)) != 0;
  }
  ~SilentConsole() {
    if (silent_) SetConsoleMode(input_, before_);
  }
  SilentConsole(const SilentConsole&) = delete;
  SilentConsole& operator=(const SilentConsole&) = delete;

  bool IsSilent() const { return silent_; }

 private:
  HANDLE input_;
  bool silent_ = false;
  DWORD before_ = 0;
};

void Write(HANDLE console, const std::u16string& text) {
  DWORD written = 0;
  WriteConsoleW(console, Wide(text), static_cast<DWORD>(text.size()), &written, nullptr);
}

std::optional<std::string> ReadLine(HANDLE input) {
  std::u16string line;
  wchar_t unit = 0;
  DWORD count = 0;
  while (ReadConsoleW(input, &unit, 1, &count, nullptr) != 0 && count == 1) {
    if (unit == L'\n') return ToUtf8(line);
    if (unit != L'\r') line += static_cast<char16_t>(unit);
  }
  return std::nullopt;
}

}  // namespace

bool StandardInputIsTerminal() { return IsConsole(GetStdHandle(STD_INPUT_HANDLE)); }

bool StandardErrorIsTerminal() { return IsConsole(GetStdHandle(STD_ERROR_HANDLE)); }

void ShowUtf8() {
  SetConsoleOutputCP(CP_UTF8);
  // The progress line is cleared by an escape sequence.
  const HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  if (GetConsoleMode(error, &mode) != 0) {
    SetConsoleMode(error, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

std::optional<std::string> ReadPassword(const std::string& prompt) {
  const Handle input(OpenConsole(L"CONIN$"));
  const Handle output(OpenConsole(L"CONOUT$"));
  if (!input.IsOpen() || !output.IsOpen()) return std::nullopt;
  const SilentConsole silent(input.Value());
  if (!silent.IsSilent()) return std::nullopt;
  Write(output.Value(), FromUtf8(prompt));
  auto line = ReadLine(input.Value());
  Write(output.Value(), u"\r\n");
  return line;
}

}  // namespace qutav::host
