#include "framework/CPropertySheet.h"

#include <utility>

#include "platform/Services.h"
#include "settings_ui/DialogTexts.h"

namespace qutav {

CPropertySheet::CPropertySheet(std::u16string className, std::uint32_t titleId, int startPage)
    : CDialog(std::move(className), titleId, nullptr), activePage_(startPage) {
  Button& ok = AddCommand(u"OK", texts::kSheetOk, kIdOk);
  ok.isDefault = true;
  ok.onClick = [this] { OnOK(); };
  AddCommand(u"Cancel", texts::kSheetCancel, kIdCancel).onClick = [this] { OnCancel(); };
  AddCommand(u"Apply", 0, kIdApply).enabled = false;
  AddCommand(u"Help", texts::kSheetHelp, kIdHelp).onClick = [this] { OnHelp(); };
}

Button& CPropertySheet::AddCommand(const std::u16string& label, std::uint32_t captionId,
                                   int commandId) {
  auto& button = Add<Button>(label, captionId);
  button.commandId = commandId;
  return button;
}

Button* CPropertySheet::GetButton(int commandId) const {
  for (const auto& control : Controls()) {
    auto* button = dynamic_cast<Button*>(control.get());
    if (button != nullptr && button->commandId == commandId) return button;
  }
  return nullptr;
}

int CPropertySheet::DoModal() { return TheServices().frontEnd->RunModal(*this); }

bool CPropertySheet::HasPage(int index) const {
  return index >= 0 && index < static_cast<int>(pages_.size());
}

void CPropertySheet::SetActivePage(int index) {
  if (!HasPage(index)) return;
  activePage_ = index;
  if (shown_) ShowActivePage();
}

void CPropertySheet::ShowActivePage() {
  CPropertyPage& page = *pages_[static_cast<std::size_t>(activePage_)];
  // A page that cannot load itself is shown as far as it came.
  if (!page.IsCreated()) Dispatch([&] { page.Create(); });
  window_->ShowPage(activePage_);
}

bool CPropertySheet::OnInitDialog() {
  shown_ = true;
  if (!HasPage(activePage_)) activePage_ = 0;
  SetActivePage(activePage_);
  return CDialog::OnInitDialog();
}

void CPropertySheet::Destroy() {
  for (CPropertyPage* page : pages_) {
    if (page->IsCreated()) page->Destroy();
  }
  shown_ = false;
  CDialog::Destroy();
}

}  // namespace qutav
