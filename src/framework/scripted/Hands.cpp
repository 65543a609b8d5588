#include "framework/scripted/Hands.h"

#include "framework/scripted/ControlRecord.h"

namespace qutav {

void ModelHands::Click(Clickable& control) {
  CDialog::Dispatch([&] { control.Click(); });
}

void ModelHands::Type(Edit& edit, const std::u16string& text) { edit.Type(text); }

void ModelHands::Type(ComboBox& combo, const std::u16string& text) { combo.Type(text); }

void ModelHands::Choose(ComboBox& combo, int row) {
  CDialog::Dispatch([&] { combo.Choose(row); });
}

void ModelHands::Choose(ListBox& list, int row) {
  CDialog::Dispatch([&] { list.Choose(row); });
}

void ModelHands::Choose(CheckList& list, int row) {
  CDialog::Dispatch([&] { list.ChooseByUser(row); });
}

void ModelHands::Toggle(CheckList& list, int row) {
  CDialog::Dispatch([&] { list.ToggleByUser(row); });
}

void ModelHands::TurnTo(CPropertySheet& sheet, int page) {
  CDialog::Dispatch([&] { sheet.SetActivePage(page); });
}

nlohmann::ordered_json ModelHands::Look(const CDialog& dialog) { return RecordControls(dialog); }

}  // namespace qutav
