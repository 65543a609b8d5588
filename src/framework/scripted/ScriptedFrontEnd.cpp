#include "framework/scripted/ScriptedFrontEnd.h"

#include "framework/CPropertySheet.h"
#include "framework/scripted/DialogPlay.h"
#include "platform/Services.h"

namespace qutav {
namespace {

// A sheet that always fits its screen.
class ScriptedSheetWindow final : public SheetWindow {
 public:
  explicit ScriptedSheetWindow(ModalEvents& events) : events_(events) {}

  Rectangle WorkArea() override { return {0, 0, 1024, 738}; }
  Rectangle WindowRectangle() override { return {0, 0, 520, 600}; }
  int ScrollBarWidth() override { return 17; }
  Rectangle ButtonRectangle(int) override { return {430, 560, 505, 583}; }
  void Resize(int, int) override {}
  void ShowScrollBar(const ScrollInfo&) override {}
  void SetScrollPosition(int, bool) override {}
  void ScrollContents(int) override {}
  void ShowPage(int index) override { events_.OnPage(index); }

 private:
  ModalEvents& events_;
};

// The loop of a dialog that ends itself: its timer fires until it does, or until the script
// presses.
void RunTimers(CDialog& dialog, ModalEvents& events) {
  while (!dialog.HasEnded() && !dialog.Timers().empty()) {
    const auto [id, period] = *dialog.Timers().begin();
    TheServices().clock->Sleep(period);
    CDialog::Dispatch([&, timer = id] { dialog.OnTimer(timer); });
    events.OnTick();
  }
}

}  // namespace

int ScriptedFrontEnd::RunModal(CDialog& dialog) {
  DialogPlay play(dialog, hands_, director_);
  dialog.Create();
  play.OnShown();
  RunTimers(dialog, play);
  play.OnClosed();
  dialog.Destroy();
  return dialog.Result();
}

int ScriptedFrontEnd::RunModal(CPropertySheet& sheet) {
  DialogPlay play(sheet, hands_, director_);
  ScriptedSheetWindow window(play);
  sheet.Attach(&window);
  sheet.Create();
  play.OnShown();
  play.OnClosed();
  sheet.Destroy();
  sheet.Attach(nullptr);
  return sheet.Result();
}

// Any font will do where nothing is drawn.
int ScriptedFrontEnd::TextWidth(const Control& control, const std::u16string& text) {
  return static_cast<int>(text.size()) * AverageCharacterWidth(control);
}

int ScriptedFrontEnd::AverageCharacterWidth(const Control&) { return 6; }

Rectangle ScriptedFrontEnd::DesktopRectangle() { return {0, 0, 1024, 768}; }

Rectangle ScriptedFrontEnd::DialogRectangle(const CDialog& dialog) {
  constexpr int kWidth = 320;
  constexpr int kRow = 24;
  return {0, 0, kWidth, kRow * (2 + static_cast<int>(dialog.Controls().size()))};
}

ScriptedFrontEnd& EnvironmentFrontEnd() {
  static ScriptedFrontEnd frontEnd(EnvironmentDirector());
  return frontEnd;
}

}  // namespace qutav
