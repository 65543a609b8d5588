// How a script's steps are carried out on controls: each as a user does it; and what a user sees.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "framework/CPropertySheet.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ListBox.h"

namespace qutav {

class Hands {
 public:
  virtual ~Hands() = default;
  virtual void Click(Clickable& control) = 0;
  virtual void Type(Edit& edit, const std::u16string& text) = 0;
  virtual void Type(ComboBox& combo, const std::u16string& text) = 0;
  virtual void Choose(ComboBox& combo, int row) = 0;
  virtual void Choose(ListBox& list, int row) = 0;
  virtual void Choose(CheckList& list, int row) = 0;
  /// Clicks the row's check box.
  virtual void Toggle(CheckList& list, int row) = 0;
  virtual void TurnTo(CPropertySheet& sheet, int page) = 0;
  /// The controls of a dialog as they are shown. Passwords are masked.
  virtual nlohmann::ordered_json Look(const CDialog& dialog) = 0;
  /// Writes what the dialog looks like to a PNG file; false when that cannot be done.
  virtual bool TakePicture(const CDialog& dialog, const std::string& path) = 0;
};

/// Acts on the models; nothing is on a screen.
class ModelHands final : public Hands {
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
  bool TakePicture(const CDialog&, const std::string&) override { return false; }
};

}  // namespace qutav
