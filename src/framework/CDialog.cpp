#include "framework/CDialog.h"

#include <utility>

#include "platform/Services.h"
#include "win/InterfaceLanguage.h"

namespace qutav {
namespace {

std::u16string CatalogueText(std::uint32_t id) {
  std::u16string text;
  if (id != 0) LoadResourceString(text, id);
  return text;
}

}  // namespace

CDialog::CDialog(std::u16string className, std::uint32_t titleId, WindowHandle parent)
    : className_(std::move(className)), parent_(parent), title_(CatalogueText(titleId)) {}

int CDialog::DoModal() { return TheServices().frontEnd->RunModal(*this); }

void CDialog::EndDialog(int result) {
  ended_ = true;
  result_ = result;
}

void CDialog::Create() {
  ended_ = false;
  OnCreate();
  OnInitDialog();
}

void CDialog::Destroy() {
  OnDestroy();
  timers_.clear();
}

Control& CDialog::AddControl(ControlKind kind, std::u16string label, std::uint32_t textId) {
  Control control;
  control.kind = kind;
  control.label = std::move(label);
  // The label of a field to fill stands before it; its own text starts empty.
  const bool filled = kind == ControlKind::kEdit || kind == ControlKind::kPassword;
  control.textId = filled ? 0 : textId;
  control.text = CatalogueText(control.textId);
  controls_.push_back(std::move(control));
  return controls_.back();
}

void CDialog::MoveTo(int left, int top) {
  left_ = left;
  top_ = top;
  placed_ = true;
}

}  // namespace qutav
