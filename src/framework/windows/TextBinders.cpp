#include "framework/windows/TextBinders.h"

#include "framework/windows/WindowText.h"

namespace qutav {
namespace {

// Some systems take no more than 32 KiB otherwise.
constexpr WPARAM kNoLimit = 0;

DWORD StyleOf(EditStyle style) {
  constexpr DWORD kLines = ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL;
  switch (style) {
    case EditStyle::kPlain:
      return ES_AUTOHSCROLL;
    case EditStyle::kPassword:
      return ES_AUTOHSCROLL | ES_PASSWORD;
    case EditStyle::kMultiLine:
      return kLines | ES_WANTRETURN;
    case EditStyle::kDigits:
      return ES_AUTOHSCROLL | ES_NUMBER;
    case EditStyle::kReadOnly:
      return ES_AUTOHSCROLL | ES_READONLY;
    case EditStyle::kReadOnlyLines:
      return kLines | ES_READONLY;
  }
  return 0;
}

}  // namespace

LabelBinder::LabelBinder(Label& label, const WindowPlace& place)
    : ControlBinder(label, place, {WC_STATICW, SS_LEFT | SS_NOPREFIX | WS_GROUP}), label_(label) {}

void LabelBinder::Show() { SetWindowTextIfOther(Window(), label_.text); }

GroupBoxBinder::GroupBoxBinder(GroupBox& box, const WindowPlace& place)
    : ControlBinder(box, place, {WC_BUTTONW, BS_GROUPBOX | WS_GROUP}), box_(box) {}

void GroupBoxBinder::Show() { SetWindowTextIfOther(Window(), Shown(box_.text)); }

EditBinder::EditBinder(Edit& edit, const WindowPlace& place)
    : ControlBinder(
          edit, place,
          {WC_EDITW, StyleOf(edit.style) | WS_TABSTOP | WS_GROUP, WS_EX_CLIENTEDGE, true}),
      edit_(edit) {
  Send(EM_SETLIMITTEXT, kNoLimit);
}

void EditBinder::OnCommand(int notification) {
  if (notification != EN_CHANGE || IsUpdating()) return;
  RunEvent([&] { edit_.Type(WindowText(Window())); });
}

void EditBinder::Show() {
  if (edit_.fontFace != face_) ShowFace();
  SetWindowTextIfOther(Window(), edit_.text);
}

void EditBinder::OnFont(HFONT) {
  if (!edit_.fontFace.empty()) ShowFace();
}

void EditBinder::ShowFace() {
  face_ = edit_.fontFace;
  font_.emplace(Dpi(), face_);
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(font_->Handle()), TRUE);
}

}  // namespace qutav
