#include "windows/ModalUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "platform/Unicode.h"
#include "platform/windows/Wide.h"

namespace qutav::test {
namespace {

constexpr UINT kTickMilliseconds = 20;

// A timer without a window tells its procedure nothing but its number.
std::map<UINT_PTR, ModalUser*>& UsersByTimer() {
  static std::map<UINT_PTR, ModalUser*> users;
  return users;
}

BOOL CALLBACK Collect(HWND window, LPARAM target) {
  reinterpret_cast<std::vector<HWND>*>(target)->push_back(window);
  return TRUE;
}

std::vector<HWND> WindowsOfThread() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::string Described(const std::vector<HWND>& windows) {
  if (windows.empty()) return " There is no other window.";
  std::string text = " There is:";
  for (const HWND window : windows) {
    text += " \"" + ToUtf8(TextOf(window)) + "\" of class " + ToUtf8(ClassOf(window)) + ";";
  }
  return text;
}

}  // namespace

WantedWindow WindowTitled(const std::u16string& title) {
  return {"a window \"" + ToUtf8(title) + "\"",
          [title](HWND window) { return TextOf(window) == title; }};
}

WantedWindow AnyDialog() {
  return {"a dialog", [](HWND window) { return ClassOf(window) == u"#32770"; }};
}

ModalUser::ModalUser(WantedWindow wanted, Action action, int patienceInTicks)
    : ModalUser(std::move(wanted), Steps{std::move(action)}, patienceInTicks) {}

ModalUser::ModalUser(WantedWindow wanted, Steps steps, int patienceInTicks)
    : wanted_(std::move(wanted)),
      steps_(std::move(steps)),
      patience_(patienceInTicks),
      known_(WindowsOfThread()),
      timer_(SetTimer(nullptr, 0, kTickMilliseconds, OnTimer)) {
  UsersByTimer()[timer_] = this;
}

ModalUser::~ModalUser() {
  KillTimer(nullptr, timer_);
  UsersByTimer().erase(timer_);
  if (HasActed() || failed_) return;
  if (window_ == nullptr) {
    ADD_FAILURE() << "There never was " << wanted_.description << ".";
  } else {
    ADD_FAILURE() << "The modal call ended after " << taken_ << " of " << steps_.size()
                  << " steps in " << wanted_.description << ".";
  }
}

void ModalUser::OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
  const auto found = UsersByTimer().find(timer);
  if (found != UsersByTimer().end()) found->second->Tick();
}

// Timers go on while a step runs.
void ModalUser::Tick() {
  if (--patience_ < 0) return GiveUp();
  if (acting_ || HasActed()) return;
  if (window_ == nullptr) FindWindow();
  if (window_ != nullptr && IsWindowVisible(window_) && IsWindowEnabled(window_)) TakeStep();
}

void ModalUser::FindWindow() {
  const std::vector<HWND> windows = NewWindows();
  const auto found = std::find_if(windows.begin(), windows.end(), wanted_.fits);
  if (found != windows.end()) window_ = *found;
}

void ModalUser::TakeStep() {
  acting_ = true;
  steps_[taken_++](window_);
  acting_ = false;
}

// The owner of a dialog is disabled, so what was opened last is closed first.
void ModalUser::GiveUp() {
  const std::vector<HWND> windows = NewWindows();
  if (!failed_) {
    ADD_FAILURE() << (HasActed() ? "The modal call does not end after the action in "
                                 : "Waited in vain for ")
                  << wanted_.description << "." << Described(windows);
  }
  failed_ = true;
  for (const HWND window : windows) PostMessageW(window, WM_CLOSE, 0, 0);
}

std::vector<HWND> ModalUser::NewWindows() const {
  std::vector<HWND> windows = WindowsOfThread();
  std::erase_if(windows, [this](HWND window) {
    return std::find(known_.begin(), known_.end(), window) != known_.end() ||
           !IsWindowVisible(window) || !IsWindowEnabled(window);
  });
  return windows;
}

std::u16string TextOf(HWND window) {
  std::u16string text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)),
                      u'\0');
  const LRESULT length =
      SendMessageW(window, WM_GETTEXT, text.size() + 1, reinterpret_cast<LPARAM>(WideBuffer(text)));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::u16string ClassOf(HWND window) {
  wchar_t name[257] = {};
  const int length = GetClassNameW(window, name, 257);
  return FromWide({name, static_cast<std::size_t>(length)});
}

HWND Descendant(HWND window, const std::u16string& className) {
  std::vector<HWND> children;
  EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&children));
  const auto found = std::find_if(children.begin(), children.end(),
                                  [&](HWND child) { return ClassOf(child) == className; });
  return found == children.end() ? nullptr : *found;
}

void SetText(HWND control, const std::u16string& text) {
  SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(text)));
}

void Press(HWND dialog, int button) {
  const HWND control = GetDlgItem(dialog, button);
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
               reinterpret_cast<LPARAM>(control));
}

}  // namespace qutav::test
