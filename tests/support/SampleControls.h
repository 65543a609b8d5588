// One control of every kind that a user can act on, filled, in a dialog or on a page.
#pragma once

#include "framework/CDialog.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ListBox.h"
#include "framework/Picture.h"

namespace qutav::test {

class ControlsDialog : public CDialog {
 public:
  ControlsDialog() : CDialog(u"CControls", 0, nullptr) {
    editable.AddString(u"C:\\a.p12");
    editable.AddString(u"C:\\b.p12");
    dropList.style = ComboStyle::kDropList;
    for (const char16_t* row : {u"Auto", u"Portrait"}) dropList.AddString(row);
    for (const char16_t* row : {u"36x36", u"48x48"}) listBox.AddString(row);
    for (const char16_t* row : {u"INTERNET", u"CAMERA"}) checkList.InsertRow(row);
    fixed.style = EditStyle::kReadOnly;
    fixed.text = u"as it stands";
    group.Add(release);
    group.Add(debug);
    group.Select(release);
  }
  using CDialog::Add;

  Label& heading = Add<Label>(u"Heading");
  Edit& edit = Add<Edit>(u"Name:");
  Edit& fixed = Add<Edit>(u"Path:");
  ComboBox& editable = Add<ComboBox>(u"Certificate:");
  ComboBox& dropList = Add<ComboBox>(u"Orientation:");
  ListBox& listBox = Add<ListBox>(u"Sizes");
  CheckList& checkList = Add<CheckList>(u"Permissions");
  CheckBox& box = Add<CheckBox>(u"Full screen");
  RadioButton& release = Add<RadioButton>(u"Release");
  RadioButton& debug = Add<RadioButton>(u"Debug");
  RadioGroup group;
  CStretchBitmapButton& browse = Add<CStretchBitmapButton>(u"Browse");
  Button& button = Add<Button>(u"OK");
  Picture& picture = Add<Picture>(u"Preview");
  ProgressBar& bar = Add<ProgressBar>(u"Progress");
};

}  // namespace qutav::test
