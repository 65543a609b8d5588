#include "framework/windows/OpenWindows.h"

#include <algorithm>
#include <vector>

namespace qutav {
namespace {

std::vector<ControlHost*> hosts;

}  // namespace

void OpenWindows::Add(ControlHost& host) { hosts.push_back(&host); }

void OpenWindows::Remove(ControlHost& host) { std::erase(hosts, &host); }

void OpenWindows::Update() {
  for (ControlHost* host : hosts) {
    host->Update();
    host->WakeWhenEnded();
  }
}

ControlHost* OpenWindows::HostOf(const CDialog& dialog) {
  const auto found = std::find_if(hosts.begin(), hosts.end(),
                                  [&](ControlHost* host) { return &host->Model() == &dialog; });
  return found == hosts.end() ? nullptr : *found;
}

ControlBinder* OpenWindows::BinderOf(const Control& control) {
  for (ControlHost* host : hosts) {
    if (ControlBinder* binder = host->BinderOf(control)) return binder;
  }
  return nullptr;
}

void OpenWindows::PreTranslate(const MSG& message) {
  for (ControlHost* host : hosts) host->PreTranslate(message);
}

void RunEvent(const std::function<void()>& event) {
  CDialog::Dispatch(event);
  CDialog::Dispatch(&OpenWindows::Update);
}

}  // namespace qutav
