// Windows that can be clicked.
#pragma once

#include "framework/CStretchBitmapButton.h"
#include "framework/windows/ControlBinder.h"

namespace qutav {

class ButtonBinder final : public ControlBinder {
 public:
  ButtonBinder(Button& button, const WindowPlace& place);
  ButtonBinder(Button& button, HWND window);
  void OnCommand(int notification) override;

 private:
  void Show() override;
  Button& button_;
};

class CheckBoxBinder final : public ControlBinder {
 public:
  CheckBoxBinder(CheckBox& box, const WindowPlace& place);
  void OnCommand(int notification) override;

 private:
  void Show() override;
  CheckBox& box_;
};

class RadioButtonBinder final : public ControlBinder {
 public:
  RadioButtonBinder(RadioButton& button, const WindowPlace& place);
  void OnCommand(int notification) override;

 private:
  void Show() override;
  RadioButton& button_;
};

/// A button that draws itself, with its caption for a tooltip and for screen readers.
class ImageButtonBinder final : public ControlBinder {
 public:
  ImageButtonBinder(CStretchBitmapButton& button, const WindowPlace& place);
  ~ImageButtonBinder() override;
  void OnCommand(int notification) override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;

 private:
  void Show() override;
  void AddTooltip();

  CStretchBitmapButton& button_;
  HWND tooltip_ = nullptr;
  bool focusedOnScreen_ = false;
};

}  // namespace qutav
