#include "framework/scripted/UserActions.h"

#include <algorithm>

#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ControlVisitor.h"
#include "framework/ListBox.h"
#include "framework/Picture.h"
#include "platform/Text.h"

namespace qutav {
namespace {

struct Address {
  std::u16string label;
  int occurrence;
};

Address ParseAddress(const std::u16string& text) {
  const std::size_t sign = text.rfind(u'#');
  const int occurrence = sign == text.npos ? 0 : ParseDecimal(text.substr(sign + 1));
  if (occurrence < 2) return {text, 1};
  return {text.substr(0, sign), occurrence};
}

bool IsUsable(const Control& control) { return control.enabled && control.visible; }

// By what a user can do to it; nothing, unless a kind says otherwise.
class Action : public ControlVisitor {
 public:
  explicit Action(Hands& hands) : hands_(hands) {}
  bool Do(Control& control) {
    if (IsUsable(control)) control.Accept(*this);
    return done_;
  }
  void Visit(Label&) override {}
  void Visit(GroupBox&) override {}
  void Visit(Edit&) override {}
  void Visit(Button&) override {}
  void Visit(CheckBox&) override {}
  void Visit(RadioButton&) override {}
  void Visit(ProgressBar&) override {}
  void Visit(ComboBox&) override {}
  void Visit(ListBox&) override {}
  void Visit(CheckList&) override {}
  void Visit(CStretchBitmapButton&) override {}
  void Visit(Picture&) override {}

 protected:
  Hands& hands_;
  bool done_ = false;
};

class SetAction final : public Action {
 public:
  SetAction(Hands& hands, const std::u16string& value) : Action(hands), value_(value) {}

  void Visit(Edit& edit) override {
    if (IsReadOnly(edit.style)) return;
    if (edit.style == EditStyle::kDigits && !IsNumber()) return;
    hands_.Type(edit, value_);
    done_ = true;
  }
  void Visit(ComboBox& combo) override {
    if (combo.style == ComboStyle::kDropDown) {
      hands_.Type(combo, value_);
      done_ = true;
      return;
    }
    const int row = combo.FindStringExact(value_);
    if (row >= 0) hands_.Choose(combo, row);
    done_ = row >= 0;
  }
  void Visit(CheckBox& box) override {
    done_ = IsSwitch();
    if (done_ && box.checked != IsOn()) hands_.Click(box);
  }
  void Visit(RadioButton& button) override {
    done_ = IsOn();
    if (done_) hands_.Click(button);
  }

 private:
  bool IsNumber() const {
    return std::all_of(value_.begin(), value_.end(),
                       [](char16_t c) { return c >= u'0' && c <= u'9'; });
  }
  bool IsOn() const { return value_ == u"true"; }
  bool IsSwitch() const { return IsOn() || value_ == u"false"; }

  const std::u16string& value_;
};

class SelectAction final : public Action {
 public:
  SelectAction(Hands& hands, const std::u16string& row) : Action(hands), row_(row) {}

  void Visit(ComboBox& combo) override {
    const int row = combo.FindStringExact(row_);
    if (row >= 0) hands_.Choose(combo, row);
    done_ = row >= 0;
  }
  void Visit(ListBox& list) override {
    const int row = list.FindStringExact(row_);
    if (row >= 0) hands_.Choose(list, row);
    done_ = row >= 0;
  }
  void Visit(CheckList& list) override {
    const int row = list.FindRow(row_);
    if (row >= 0) hands_.Choose(list, row);
    done_ = row >= 0;
  }

 private:
  const std::u16string& row_;
};

bool SwitchRow(Hands& hands, const CDialog& dialog, const std::u16string& text,
               const std::u16string& value) {
  if (value != u"true" && value != u"false") return false;
  for (const auto& control : dialog.Controls()) {
    auto* list = dynamic_cast<CheckList*>(control.get());
    const int row = list == nullptr || !IsUsable(*list) ? -1 : list->FindRow(text);
    if (row < 0) continue;
    if (list->IsChecked(row) != (value == u"true")) hands.Toggle(*list, row);
    return true;
  }
  return false;
}

}  // namespace

Control* FindControl(const CDialog& dialog, const std::u16string& label) {
  Address address = ParseAddress(label);
  for (const auto& control : dialog.Controls()) {
    if (control->label == address.label && --address.occurrence == 0) return control.get();
  }
  return nullptr;
}

bool SetByUser(Hands& hands, const CDialog& dialog, const std::u16string& label,
               const std::u16string& value) {
  Control* control = FindControl(dialog, label);
  return control == nullptr ? SwitchRow(hands, dialog, label, value)
                            : SetAction(hands, value).Do(*control);
}

bool SelectByUser(Hands& hands, const CDialog& dialog, const std::u16string& label,
                  const std::u16string& row) {
  Control* control = FindControl(dialog, label);
  return control != nullptr && SelectAction(hands, row).Do(*control);
}

Clickable* FindButton(const CDialog& dialog, const std::u16string& label) {
  Control* control = FindControl(dialog, label);
  if (control == nullptr || !IsUsable(*control)) return nullptr;
  if (auto* button = dynamic_cast<Button*>(control)) return button;
  return dynamic_cast<CStretchBitmapButton*>(control);
}

}  // namespace qutav
