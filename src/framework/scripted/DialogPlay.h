// What a script does to one dialog, or to the sheet, while it is shown.
#pragma once

#include <optional>

#include "framework/CPropertySheet.h"
#include "framework/ModalEvents.h"
#include "framework/scripted/ScriptDirector.h"
#include "framework/scripted/StepPlayer.h"

namespace qutav {

/// Made before the dialog is created. A dialog that the script does not end, and that does not end
/// itself, is cancelled.
class DialogPlay final : public ModalEvents {
 public:
  DialogPlay(CDialog& dialog, Hands& hands, ScriptDirector& director);
  DialogPlay(CPropertySheet& sheet, Hands& hands, ScriptDirector& director);

  void OnShown() override;
  void OnTick() override;
  void OnPage(int index) override;
  /// The dialog has ended.
  void OnClosed();

 private:
  bool WaitsForTicks() const;

  CDialog& dialog_;
  CPropertySheet* sheet_ = nullptr;
  Hands& hands_;
  ScriptDirector& director_;
  StepPlayer player_;
  std::optional<ScriptAnswer> answer_;
  unsigned ticks_ = 0;
};

}  // namespace qutav
