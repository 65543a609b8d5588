// One operation for each kind of control; front ends are made of these.
#pragma once

namespace qutav {

struct Label;
struct GroupBox;
struct Edit;
struct Button;
struct CheckBox;
struct RadioButton;
struct ProgressBar;
class ComboBox;
class ListBox;
class CheckList;
class CStretchBitmapButton;
class Picture;

class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  virtual void Visit(Label& label) = 0;
  virtual void Visit(GroupBox& box) = 0;
  virtual void Visit(Edit& edit) = 0;
  virtual void Visit(Button& button) = 0;
  virtual void Visit(CheckBox& box) = 0;
  virtual void Visit(RadioButton& button) = 0;
  virtual void Visit(ProgressBar& bar) = 0;
  virtual void Visit(ComboBox& combo) = 0;
  virtual void Visit(ListBox& list) = 0;
  virtual void Visit(CheckList& list) = 0;
  virtual void Visit(CStretchBitmapButton& button) = 0;
  virtual void Visit(Picture& picture) = 0;
};

}  // namespace qutav
