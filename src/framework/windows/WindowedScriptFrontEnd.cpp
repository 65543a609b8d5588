#include "framework/windows/WindowedScriptFrontEnd.h"

#include "framework/scripted/DialogPlay.h"
#include "framework/windows/DialogWindow.h"
#include "framework/windows/PropertySheetWindow.h"

namespace qutav {

int WindowedScriptFrontEnd::RunModal(CDialog& dialog) {
  DialogPlay play(dialog, hands_, director_);
  const int result = RunDialogWindow(dialog, play);
  play.OnClosed();
  return result;
}

int WindowedScriptFrontEnd::RunModal(CPropertySheet& sheet) {
  DialogPlay play(sheet, hands_, director_);
  const int result = RunPropertySheetWindow(sheet, play);
  play.OnClosed();
  return result;
}

}  // namespace qutav
