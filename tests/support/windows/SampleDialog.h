// The sample controls where a user sees them.
#pragma once

#include "SampleControls.h"
#include "framework/layout/Parts.h"

namespace qutav::test {

class SampleDialog : public ControlsDialog {
 public:
  SampleDialog() {
    using namespace layout;
    for (Control* field : {static_cast<Control*>(&edit), static_cast<Control*>(&fixed),
                           static_cast<Control*>(&editable), static_cast<Control*>(&dropList),
                           static_cast<Control*>(&listBox), static_cast<Control*>(&checkList),
                           static_cast<Control*>(&browse)}) {
      field->caption = field->label;
    }
    heading.text = u"Heading";
    box.text = u"Full screen";
    release.text = u"Release";
    debug.text = u"Debug";
    emulator.text = u"Emulator";
    group.Add(emulator);
    button.text = u"OK";
    button.isDefault = true;
    button.onClick = [this] { OnOK(); };
    hover.Add(browse);
    picture.width = 40;
    picture.height = 20;
    SetLayout(Column(
        {heading,
         Form({Line(edit, Row({edit, browse})), Line(fixed), Line(editable), Line(dropList)}),
         Columns({Above(listBox, List(listBox, 4, 80)), List(checkList, 4, 80)}), box, release,
         debug, emulator, picture, bar, Buttons({button})},
        kUnrelated));
  }
  using CDialog::AddAfter;
  using CDialog::KillTimer;
  using CDialog::Remove;
  using CDialog::SetTimer;

  void OnTimer(TimerId) override { ++ticks; }
  void OnMouseMove(const Control* under) override { hover.OnMouseMove(under); }

  RadioButton& emulator = AddAfter<RadioButton>(debug, u"Emulator");
  int ticks = 0;
  HoverButtons hover;
};

}  // namespace qutav::test
