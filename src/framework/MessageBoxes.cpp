#include "framework/MessageBoxes.h"

#include "platform/Services.h"

namespace qutav {
namespace {

constexpr char16_t kProductTitle[] = u"Zenvoka Kestrow";

int Show(const std::u16string& text, OwnerWindow owner, MessageIcon icon, MessageButtons buttons) {
  FrontEnd& frontEnd = *TheServices().frontEnd;
  return frontEnd.ShowMessage(
      {owner ? *owner : frontEnd.FocusWindow(), kProductTitle, text, icon, buttons});
}

}  // namespace

void ShowInformation(const std::u16string& text, OwnerWindow owner) {
  Show(text, owner, MessageIcon::kInformation, MessageButtons::kOk);
}

void ShowWarning(const std::u16string& text, OwnerWindow owner) {
  Show(text, owner, MessageIcon::kWarning, MessageButtons::kOk);
}

bool AskQuestion(const std::u16string& text, OwnerWindow owner) {
  return Show(text, owner, MessageIcon::kWarning, MessageButtons::kOkCancel) == kIdOk;
}

}  // namespace qutav
