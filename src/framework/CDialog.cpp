#include "framework/CDialog.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "framework/ControlVisitor.h"
#include "framework/MessageBoxes.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav {
namespace {

std::u16string CatalogueText(std::uint32_t id) {
  std::u16string text;
  if (id != 0) LoadResourceString(text, id);
  return text;
}

// Controls that a user fills have their caption beside them.
class IsField : public ControlVisitor {
 public:
  explicit IsField(Control& control) { control.Accept(*this); }
  explicit operator bool() const { return field_; }

  void Visit(Label&) override {}
  void Visit(GroupBox&) override {}
  void Visit(Edit&) override { field_ = true; }
  void Visit(Button&) override {}
  void Visit(CheckBox&) override {}
  void Visit(RadioButton&) override {}
  void Visit(ProgressBar&) override { field_ = true; }
  void Visit(ComboBox&) override { field_ = true; }
  void Visit(ListBox&) override { field_ = true; }
  void Visit(CheckList&) override { field_ = true; }
  void Visit(CStretchBitmapButton&) override { field_ = true; }
  void Visit(Picture&) override { field_ = true; }

 private:
  bool field_ = false;
};

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
  created_ = true;
  OnCreate();
  OnInitDialog();
}

void CDialog::Destroy() {
  OnDestroy();
  timers_.clear();
  created_ = false;
}

void CDialog::Dispatch(const std::function<void()>& event) {
  std::u16string detail;
  try {
    event();
    return;
  } catch (const std::exception& unforeseen) {
    detail = u"\n\n" + FromLocalCodePage(unforeseen.what());
  } catch (...) {
  }
  ShowWarning(Message(messages::kUnknownError) + detail);
}

void CDialog::GiveTexts(Control& control, const std::u16string& label, std::uint32_t captionId) {
  control.label = label;
  control.captionId = captionId;
  (IsField(control) ? control.caption : control.text) = CatalogueText(captionId);
}

std::size_t CDialog::IndexOf(const Control& control) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& other) { return other.get() == &control; });
  return static_cast<std::size_t>(found - controls_.begin());
}

void CDialog::Remove(const Control& control) {
  controls_.erase(controls_.begin() + static_cast<std::ptrdiff_t>(IndexOf(control)));
}

void CDialog::MoveTo(int left, int top) {
  left_ = left;
  top_ = top;
  placed_ = true;
}

void CDialog::Repaint() { TheServices().frontEnd->Repaint(*this); }

}  // namespace qutav
