#include "settings_ui/ProgressDlg.h"

#include "framework/layout/Parts.h"
#include "packaging/PublishCancelled.h"
#include "platform/Services.h"
#include "settings_ui/DialogTexts.h"

namespace qutav {
namespace {

constexpr CDialog::TimerId kProgressTimer = 667567;
constexpr std::chrono::milliseconds kTick{1000};

}  // namespace

CProgressDlg::CProgressDlg(WindowHandle parent) : CDialog(u"CProgressDlg", 0, parent) {
  using namespace layout;
  auto& text = Add<Label>(u"Publishing ...", texts::kProgressText);
  bar_ = &Add<ProgressBar>(u"");
  auto& cancel = Add<Button>(u"Cancel", texts::kProgressCancel);
  cancel.onClick = [this] { OnCancel(); };
  SetLayout(Column({Column({text, *bar_}), Buttons({cancel})}, kUnrelated));
  PublishCancelled.store(0, std::memory_order_relaxed);
}

void CProgressDlg::OnCreate() { SetTimer(kProgressTimer, kTick); }

bool CProgressDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  Centre();
  bar_->rangeEnd = 100;
  bar_->marqueeStep = std::chrono::milliseconds(50);
  Repaint();
  return true;
}

// On the active window where that is the larger in both directions, else on the desktop.
void CProgressDlg::Centre() {
  FrontEnd& frontEnd = *TheServices().frontEnd;
  const Rectangle own = frontEnd.DialogRectangle(*this);
  const Rectangle active = frontEnd.ActiveWindowRectangle();
  const bool fits = active.Height() > own.Height() && active.Width() > own.Width();
  const Rectangle reference = fits ? active : frontEnd.DesktopRectangle();
  MoveTo(reference.left + reference.Width() / 2 - own.Width() / 2,
         reference.top + reference.Height() / 2 - own.Height() / 2);
}

void CProgressDlg::OnTimer(TimerId) {
  if (doneFlag_ == nullptr || doneFlag_->load(std::memory_order_relaxed) == 0) return;
  EndDialog(0);
  KillTimer(kProgressTimer);
}

void CProgressDlg::OnCancel() {
  cancelled_ = true;
  bar_->enabled = false;
  bar_->visible = false;
  PublishCancelled.store(1, std::memory_order_relaxed);
  if (doneFlag_ != nullptr) doneFlag_->store(1, std::memory_order_relaxed);
  Repaint();
  CDialog::OnCancel();
}

void CProgressDlg::OnDestroy() { ClearDoneFlag(); }

}  // namespace qutav
