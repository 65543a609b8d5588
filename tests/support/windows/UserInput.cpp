#include "windows/UserInput.h"

namespace qutav::test {
namespace {

INPUT KeyInput(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  return input;
}

INPUT CharacterInput(char16_t character, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = character;
  input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
  return input;
}

INPUT MouseInput(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

void Send(INPUT input) { SendInput(1, &input, sizeof input); }

}  // namespace

void Strike(WORD key) {
  Send(KeyInput(key, 0));
  Send(KeyInput(key, KEYEVENTF_KEYUP));
}

void StrikeWith(WORD held, WORD key) {
  Send(KeyInput(held, 0));
  Strike(key);
  Send(KeyInput(held, KEYEVENTF_KEYUP));
}

void TypeText(const std::u16string& text) {
  for (const char16_t character : text) {
    Send(CharacterInput(character, 0));
    Send(CharacterInput(character, KEYEVENTF_KEYUP));
  }
}

void MoveMouse(HWND window, int x, int y) {
  POINT point{x, y};
  ClientToScreen(window, &point);
  SetCursorPos(point.x, point.y);
}

void ClickAt(HWND window, int x, int y) {
  MoveMouse(window, x, y);
  Send(MouseInput(MOUSEEVENTF_LEFTDOWN));
  Send(MouseInput(MOUSEEVENTF_LEFTUP));
}

}  // namespace qutav::test
