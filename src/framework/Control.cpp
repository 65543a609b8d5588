#include "framework/Control.h"

#include "framework/ControlVisitor.h"

namespace qutav {

void Label::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void GroupBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void Edit::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void Button::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void CheckBox::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void RadioButton::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
void ProgressBar::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Clickable::Click() {
  if (onClick) onClick();
}

void CheckBox::Click() {
  checked = !checked;
  Clickable::Click();
}

void RadioButton::Click() {
  if (group != nullptr) group->Select(*this);
  Clickable::Click();
}

void RadioGroup::Add(RadioButton& button) {
  button.group = this;
  buttons_.push_back(&button);
}

void RadioGroup::Select(int index) {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    buttons_[i]->checked = static_cast<int>(i) == index;
  }
}

void RadioGroup::Select(const RadioButton& button) {
  for (RadioButton* other : buttons_) other->checked = other == &button;
}

int RadioGroup::Selected() const {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    if (buttons_[i]->checked) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace qutav
