// Windows of text: labels, frames with a heading, fields.
#pragma once

#include <optional>
#include <string>

#include "framework/windows/ControlBinder.h"

namespace qutav {

class LabelBinder final : public ControlBinder {
 public:
  LabelBinder(Label& label, const WindowPlace& place);

 private:
  void Show() override;
  Label& label_;
};

class GroupBoxBinder final : public ControlBinder {
 public:
  GroupBoxBinder(GroupBox& box, const WindowPlace& place);

 private:
  void Show() override;
  GroupBox& box_;
};

class EditBinder final : public ControlBinder {
 public:
  EditBinder(Edit& edit, const WindowPlace& place);
  void OnCommand(int notification) override;

 private:
  void Show() override;
  void OnFont(HFONT font) override;
  void ShowFace();

  Edit& edit_;
  std::u16string face_;
  std::optional<DialogFont> font_;
};

}  // namespace qutav
