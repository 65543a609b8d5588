// Carries out a script's steps on real windows, by the messages that a user's hands cause.
#pragma once

#include "framework/scripted/Hands.h"

namespace qutav {

class WindowHands final : public Hands {
 public:
  void Click(Clickable& control) override;
  void Type(Edit& edit, const std::u16string& text) override;
  void Type(ComboBox& combo, const std::u16string& text) override;
  void Choose(ComboBox& combo, int row) override;
  void Choose(ListBox& list, int row) override;
  void Choose(CheckList& list, int row) override;
  void Toggle(CheckList& list, int row) override;
  void TurnTo(CPropertySheet& sheet, int page) override;
  nlohmann::ordered_json Look(const CDialog& dialog) override;
  bool TakePicture(const CDialog& dialog, const std::string& path) override;
};

}  // namespace qutav
